// SPDX-License-Identifier: MIT
#pragma once

#include "Gui.h"
#include "IconViews.h"
#include "Literals.h"
#include "RegisterFixture.h"
#include "SettingsGroupBox.h"
#include "SettingsView.h"

#include <QVBoxLayout>

namespace abissora::test {

/// The settings in a window of their own, shown and active.
struct ShownSettings
{
    explicit ShownSettings(RegisterFixture& f, QSize size = {900, 1400})
        : view(new SettingsView(f.settings, f.types, f.updates, {f.info, f.product}, f.ids, f.opener))
    {
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(view);
        window.resize(size);
        activate(window);
    }

    QAbstractButton& button(const char* name) const { return usable<QAbstractButton>(window, name); }
    /// Clicks and lets everything happen.
    void click(const char* name) const
    {
        test::click(window, name);
        settle();
    }
    IconLabel& feedback() const { return existing<IconLabel>(*view, "checkFeedback"); }
    template <typename Sheet>
    Sheet* sheet() const
    {
        return findDialog<Sheet>(window);
    }
    QStringList information() const
    {
        QStringList lines;
        for (const SettingsInfoRow* row : view->findChildren<SettingsInfoRow*>())
            lines.append(row->label() + u": "_s + row->value());
        return lines;
    }
    QStringList texts() const
    {
        QStringList all;
        for (const QLabel* label : view->findChildren<QLabel*>())
            if (label->isVisibleTo(view) && !label->text().isEmpty())
                all.append(label->text());
        for (const QAbstractButton* each : view->findChildren<QAbstractButton*>())
            if (each->isVisibleTo(view) && !each->text().isEmpty())
                all.append(each->text());
        return all;
    }

    QWidget window;
    SettingsView* view;
};

} // namespace abissora::test
