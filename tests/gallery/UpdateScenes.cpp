// SPDX-License-Identifier: MIT
#include "AboutView.h"
#include "ScreenStage.h"
#include "UpdateView.h"

namespace abissora::gallery {

namespace {

const QString someNotes = QStringLiteral("• Le statistiche mostrano la distribuzione per tipologia\n"
                                         "• La guida si cerca in ogni sezione\n"
                                         "• Corretto il calcolo dei giorni al cambio dell'ora");

Scene offer(const QString& name, const QString& version, const std::optional<QString>& notes)
{
    return form(name, [=](test::ScreenFixture& fixture) {
        const UpdateInfo update{version, 57, QUrl(QStringLiteral("https://abissora.example/scarica")), notes};
        return std::make_unique<UpdateView>(fixture.context, update);
    });
}

} // namespace

QList<Scene> updateScenes()
{
    const QString line = QStringLiteral("Una riga di novità abbastanza lunga da andare a capo nella finestra. ");
    return {
        form(QStringLiteral("about"),
             [](test::ScreenFixture& fixture) { return std::make_unique<AboutView>(fixture.context); }),
        offer(QStringLiteral("update"), QStringLiteral("1.3.0"), someNotes),
        offer(QStringLiteral("update-without-notes"), QStringLiteral("1.3.0"), std::nullopt),
        offer(QStringLiteral("update-long-notes"), QStringLiteral("1.3.0"), line.repeated(40)),
        offer(QStringLiteral("update-hostile"), QStringLiteral("<b>9</b>\u202E").repeated(50),
              QStringLiteral("<h1>Titolo</h1><img src=\"file:///etc/passwd\">\u0007") + QString(500, QLatin1Char('W'))),
    };
}

} // namespace abissora::gallery
