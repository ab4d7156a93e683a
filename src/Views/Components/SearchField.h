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

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void clearByPerson();

    QAction* m_clear;
};

} // namespace abissora
