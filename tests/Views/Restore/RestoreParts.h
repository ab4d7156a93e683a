// SPDX-License-Identifier: MIT
#pragma once

#include "Ended.h"
#include "Gui.h"
#include "LookedAtStates.h"
#include "RegisterFixture.h"
#include "RestoreView.h"
#include "StateRow.h"
#include "ViewSheet.h"

namespace abissora::test {

inline const QString seaState = u"20260614T100000.000Z-deleted-item"_s;
inline const QString oldState = u"20260401T100000.000Z-import"_s;
inline const QString damagedState = u"20260301T100000.000Z-unreadable"_s;
inline const QString lostState = u"20260201T100000.000Z-unreadable"_s;

inline Equipment gear(int id, const QString& name)
{
    return equipment(id, name);
}

inline Equipment torch()
{
    Equipment item = equipment(1, u"Torcia"_s);
    item.maintenanceHistory = {maintenance(11)};
    return item;
}

/// A register of two items with four kept states: one in which a third item was there and one was called otherwise, an
/// equal one, one of which an item can be read and one of which nothing can.
struct KeptRegister : RegisterFixture
{
    KeptRegister()
        : RegisterFixture(QList{torch(), gear(2, u"Pinne"_s)})
    {
        forgetStates();
        Equipment renamed = gear(2, u"Pinne lunghe"_s);
        keep(seaState, {torch(), renamed, gear(3, u"Boa"_s)});
        keep(oldState, {torch(), gear(2, u"Pinne"_s)});
        QByteArray damaged = encode(QList{torch(), renamed}).value();
        damaged.replace("\"Pinne lunghe\"", "7");
        write(file(damagedState), damaged);
        write(file(lostState), "nonsense");
    }

    void forgetStates() const
    {
        if (!QDir(directories.backups()).removeRecursively())
            qFatal("the temporary folder cannot be emptied");
    }
    [[nodiscard]] static QString file(const QString& state) { return u"backups/%1/savedEquipment.json"_s.arg(state); }
    void keep(const QString& state, const QList<Equipment>& items) const { write(file(state), encode(items).value()); }
};

/// The sheet over a window, shown and active.
struct ShownRestore
{
    explicit ShownRestore(RegisterFixture& f, QSize size = {1280, 800})
        : lookedAt(f.directories.windowStateFile())
    {
        window.resize(size);
        activate(window);
        sheet = RestoreView::makeSheet(
            {f.generations, f.archive, f.equipment, f.types, f.settings, f.work, f.almanac}, lookedAt,
            [this](const EarlierState& state, const std::shared_ptr<WorkProgress>&) {
                asked.append(state.name);
                return ended(answer);
            },
            &window);
        sheet->open();
        activate(*sheet);
    }

    /// The buttons of the states, from top to bottom.
    [[nodiscard]] QList<StateButton*> states() const
    {
        QList<StateButton*> buttons = sheet->findChildren<StateButton*>();
        buttons.removeIf([](const StateButton* button) { return !button->isVisible(); });
        std::ranges::sort(buttons, std::less(), [this](const StateButton* b) { return b->mapTo(sheet, QPoint()).y(); });
        return buttons;
    }
    /// The place of the chosen one; -1 unless exactly one is.
    [[nodiscard]] qsizetype chosen() const
    {
        const QList<StateButton*> all = states();
        const auto isChecked = [](const StateButton* button) { return button->isChecked(); };
        if (std::ranges::count_if(all, isChecked) != 1)
            return -1;
        return std::ranges::find_if(all, isChecked) - all.begin();
    }
    /// What the rows at the right say to screen readers.
    [[nodiscard]] QStringList differences() const
    {
        QStringList texts;
        for (const QWidget* row : sheet->findChildren<QWidget*>(u"difference"_s))
            texts.append(row->accessibleName());
        return texts;
    }

    QWidget window;
    LookedAtStates lookedAt;
    IoResult<void> answer;
    QStringList asked;
    ViewSheet* sheet = nullptr;
};

} // namespace abissora::test
