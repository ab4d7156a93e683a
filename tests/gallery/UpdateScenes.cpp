// SPDX-License-Identifier: MIT
#include "AboutView.h"
#include "Literals.h"
#include "ProgramFacts.h"
#include "ScreenStage.h"
#include "UpdateView.h"

namespace abissora::gallery {

namespace {

const QString someNotes = u"• Le statistiche mostrano la distribuzione per tipologia\n"
                          "• La guida si cerca in ogni sezione\n"
                          "• Corretto il calcolo dei giorni al cambio dell'ora"_s;

Scene offer(const QString& name, const QString& version, const std::optional<QString>& notes)
{
    return form(name, [=](test::RegisterFixture& fixture) {
        const UpdateInfo update{version, 57, QUrl(u"https://abissora.example/scarica"_s), notes};
        return std::make_unique<UpdateView>(update, fixture.product.websiteURL, fixture.opener);
    });
}

} // namespace

QList<Scene> updateScenes()
{
    const QString line = u"Una riga di novità abbastanza lunga da andare a capo nella finestra. "_s;
    return {
        form(u"about"_s,
             [](test::RegisterFixture& fixture) {
                 return std::make_unique<AboutView>(ProgramFacts{fixture.info, fixture.product});
             }),
        offer(u"update"_s, u"1.3.0"_s, someNotes),
        offer(u"update-without-notes"_s, u"1.3.0"_s, std::nullopt),
        offer(u"update-long-notes"_s, u"1.3.0"_s, line.repeated(40)),
        offer(u"update-hostile"_s, u"<b>9</b>\u202E"_s.repeated(50),
              u"<h1>Titolo</h1><img src=\"file:///etc/passwd\">\u0007"_s + QString(500, u'W')),
    };
}

} // namespace abissora::gallery
