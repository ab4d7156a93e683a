// SPDX-License-Identifier: MIT
#include "ScreenStage.h"

#include <QAbstractButton>

namespace abissora::gallery {

namespace {

constexpr QSize wholeSize(1280, 1400);

void showSettings(MainWindow& window)
{
    selectInSidebar(window, QStringLiteral("settings"));
}

void check(MainWindow& window)
{
    window.findChild<QAbstractButton*>(QStringLiteral("checkForUpdates"))->click();
}

} // namespace

QList<Scene> settingsScenes()
{
    return {
        window(QStringLiteral("settings"),
               [](test::ScreenFixture& f, MainWindow& w) {
                   showSettings(w);
                   w.show();
                   check(w);
                   f.http.answer(200, R"({"version":"1.2.0","build":42,"downloadURL":"https://abissora.example/"})");
               }),
        window(
            QStringLiteral("settings-whole"),
            [](test::ScreenFixture& f, MainWindow& w) {
                f.settings.setDefaultServiceInterval(200);
                f.settings.setCurrencySymbol({});
                showSettings(w);
                w.show();
                check(w);
                f.http.answer(500, {});
            },
            items(), wholeSize),
        window(
            QStringLiteral("settings-checking"),
            [](test::ScreenFixture&, MainWindow& w) {
                showSettings(w);
                w.show();
                check(w);
            },
            items(), QSize(1000, 700)),
    };
}

} // namespace abissora::gallery
