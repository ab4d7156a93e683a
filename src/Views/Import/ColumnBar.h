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

    /// The pickers stay where they are, unless the plan is about another subject.
    void showColumns(const ImportPlan& plan);
    /// Emits nothing.
    void showAllChosen(bool areChosen, bool canBeChosen);
    /// The box, the pickers, then the table, as they stand. All of them must be in one window.
    void orderTabs(QWidget& table);
    /// Where the header is now, each picker above its section.
    void place();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void fieldChosen(qsizetype column, abissora::ImportField field);
    void allChosen(bool areChosen);
    /// The keyboard came to the picker of a section.
    void reached(int section);

private:
    void makePickers(const ImportPlan& plan);
    [[nodiscard]] QComboBox* makePicker(const ImportPlan& plan, qsizetype column);

    ColumnHeader& m_header;
    QCheckBox* m_all;
    QList<QComboBox*> m_pickers;            ///< of the file's columns
    std::optional<ImportSubject> m_subject; ///< that the pickers are for
};

} // namespace abissora
