// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

namespace abissora {

/// Every change by the person, the clear mark and Escape included, emits textEdited() exactly once; setText() does not.
class SearchField : public QLineEdit
{
    Q_OBJECT

public:
    explicit SearchField(const QString& placeholder, QWidget* parent = nullptr);

Q_SIGNALS:
    /// The Down key: the person wants to go on to what was found.
    void resultsRequested();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void clearByPerson();

    QAction* m_clear;
};

} // namespace abissora
