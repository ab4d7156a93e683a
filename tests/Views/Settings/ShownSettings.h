// SPDX-License-Identifier: MIT
#pragma once

#include "IconViews.h"
#include "Literals.h"
#include "ScreenFixture.h"
#include "SettingsGroupBox.h"
#include "SettingsView.h"

#include <QAbstractButton>
#include <QVBoxLayout>

namespace abissora::test {

/// The settings in a window of their own, shown and active.
struct ShownSettings
{
    explicit ShownSettings(ScreenFixture& f, QSize size = {900, 1400})
        : view(new SettingsView(f.settings, f.types, f.updates, {f.info, f.product}, f.ids, f.opener))
    {
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(view);
        window.resize(size);
        window.show();
        window.activateWindow();
        QCoreApplication::processEvents();
    }

    QAbstractButton& button(const char* name) const
    {
        auto* found = view->findChild<QAbstractButton*>(QLatin1String(name));
        if (found == nullptr || !found->isVisible() || !found->isEnabled())
            qFatal("no visible, enabled button called %s", name);
        return *found;
    }
    void click(const char* name) const
    {
        view->ensureWidgetVisible(&button(name));
        QTest::mouseClick(&button(name), Qt::LeftButton);
        QCoreApplication::processEvents();
    }
    IconLabel& feedback() const { return *view->findChild<IconLabel*>(u"checkFeedback"_s); }
    template <typename Sheet>
    Sheet* sheet() const
    {
        for (Sheet* each : window.findChildren<Sheet*>())
            if (each->isVisible())
                return each;
        return nullptr;
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
