// SPDX-License-Identifier: MIT
#pragma once

#include "ImportPlan.h"

#include <QWidget>

class QCheckBox;
class QComboBox;

namespace abissora {

class ColumnHeader;

/// Stands over a table's header: above each column of the file what it is, to be changed, and above the boxes one for
/// all. Beside the table, not in it, as the toolkit hides what is in a table from screen readers.
class ColumnBar : public QWidget
{
    Q_OBJECT

public:
    /// Both must outlive it; the header lies in a table that lies in the parent.
    ColumnBar(ColumnHeader& header, QWidget* parent);

    /// Makes the pickers anew.
    void showColumns(const ImportPlan& plan);
    /// Emits nothing.
    void showAllChosen(bool areChosen, bool canBeChosen);
    /// The box, the pickers, then the table, as they stand. All of them must be in one window.
    void orderTabs(QWidget& table);
    /// Takes the keyboard to the picker of a column of the plan.
    void focusPicker(qsizetype column);
    /// Where the header is now, each picker above its section.
    void place();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void fieldChosen(int section, abissora::ImportField field);
    void allChosen(bool areChosen);
    /// The keyboard came to the picker of a section.
    void reached(int section);

private:
    [[nodiscard]] QComboBox* makePicker(const ImportPlan& plan, qsizetype column);

    ColumnHeader& m_header;
    QCheckBox* m_all;
    QList<QComboBox*> m_pickers; ///< of the file's columns
};

} // namespace abissora
