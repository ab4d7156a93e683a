// SPDX-License-Identifier: MIT
#pragma once

#include "ImportPlan.h"

#include <QHeaderView>

class QCheckBox;
class QComboBox;

namespace abissora {

/// Above each column of a file what it is, to be changed, and what the file calls it; above the boxes one for all.
class ColumnHeader : public QHeaderView
{
    Q_OBJECT

public:
    explicit ColumnHeader(QWidget* parent = nullptr);

    /// Makes the pickers anew; the model shows the plan.
    void showColumns(const ImportPlan& plan);
    /// Emits nothing.
    void showAllChosen(bool areChosen, bool canBeChosen);

    [[nodiscard]] QSize sizeHint() const override;
    /// Room for the picker and the file's heading.
    [[nodiscard]] int columnWidth(int section) const;

Q_SIGNALS:
    void fieldChosen(int section, abissora::ImportField field);
    void allChosen(bool areChosen);
    /// The keyboard came to the picker of a section.
    void reached(int section);

protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void place();
    [[nodiscard]] QComboBox* makePicker(const ImportPlan& plan, qsizetype column);

    QCheckBox* m_all;
    QList<QComboBox*> m_pickers; ///< null for a column that the file has not
    QStringList m_headings;
};

} // namespace abissora
