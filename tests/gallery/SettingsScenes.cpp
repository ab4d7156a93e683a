// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "ScreenStage.h"

#include <QAbstractButton>

namespace abissora::gallery {

namespace {

constexpr QSize wholeSize(1280, 1400);

void showSettings(MainWindow& window)
{
    selectInSidebar(window, u"settings"_s);
}

void check(MainWindow& window)
{
    window.findChild<QAbstractButton*>(u"checkForUpdates"_s)->click();
}

} // namespace

QList<Scene> settingsScenes()
{
    return {
        window(u"settings"_s,
               [](test::RegisterFixture& f, MainWindow& w) {
                   showSettings(w);
                   w.show();
                   check(w);
                   f.http.answer(200, R"({"version":"1.2.0","build":42,"downloadURL":"https://abissora.example/"})");
               }),
        window(
            u"settings-whole"_s,
            [](test::RegisterFixture& f, MainWindow& w) {
                f.settings.setDefaultServiceInterval(200);
                f.settings.setCurrencySymbol({});
                showSettings(w);
                w.show();
                check(w);
                f.http.answer(500, {});
            },
            items(), wholeSize),
        window(
            u"settings-checking"_s,
            [](test::RegisterFixture&, MainWindow& w) {
                showSettings(w);
                w.show();
                check(w);
            },
            items(), QSize(1000, 700)),
    };
}

} // namespace abissora::gallery
