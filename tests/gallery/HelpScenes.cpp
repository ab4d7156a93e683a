// SPDX-License-Identifier: MIT
#include "Fakes.h"
#include "HelpLoader.h"
#include "HelpView.h"
#include "Literals.h"
#include "Scenes.h"

#include <QLineEdit>
#include <QListView>

namespace abissora::gallery {

namespace {

constexpr QSize smallest(880, 640);

struct Link
{
    test::RecordingOpener opener;
};

class Help final : private Link, public HelpView
{
public:
    explicit Help(QList<HelpSection> sections)
        : HelpView(std::move(sections), opener)
    {}

    void select(int row)
    {
        auto* list = findChild<QListView*>(u"helpSections"_s);
        list->setCurrentIndex(list->model()->index(row, 0));
    }

    void search(const QString& text) { findChild<QLineEdit*>(u"helpSearch"_s)->setText(text); }
};

QList<HelpSection> everyKindOfBlock()
{
    return HelpLoader::parse(
        u"## Introduzione\nCiao.\n## La finestra principale\nCiao.\n## Aggiungere un articolo\nCiao.\n"
        "## Manutenzioni\n"
        "Ogni articolo conserva la propria **cronologia**. Registra un intervento con data, tipo, descrizione, "
        "tecnico, costo e documenti.\n"
        "### Registrare un intervento\n"
        "1. Seleziona l'articolo e premi **Aggiungi Manutenzione**.\n"
        "2. Compila almeno la descrizione.\n"
        "3. Premi **Salva**.\n"
        "> La prossima scadenza viene proposta dall'intervallo della tipologia.\n"
        "- Lo scontrino e il certificato sono PDF.\n"
        "- Sostituire un documento elimina quello precedente.\n"
        "```\nProssimo Tagliando = Data + Intervallo\n```\n"
        "---\n"
        "Un testo *in corsivo*, **in grassetto**, con `codice` e con un [collegamento](https://abissora.example/), "
        "abbastanza lungo da occupare più di una riga anche nelle finestre larghe.\nE una seconda riga.\n"
        "> Una citazione che non sta su una riga sola: continua e continua, finché non ha bisogno di andare a capo "
        "almeno una volta, anche nella finestra più larga.\n"
        "> Un'altra, subito sotto.\n"
        "```\nprima riga\nseconda riga\n```\n"
        "## Allegati PDF\nCiao.\n## Tipologie\nCiao.\n## Domande frequenti\nCiao.\n"_s);
}

template <typename Setup>
Scene help(const QString& name, QSize size, const QList<HelpSection>& sections, Setup setup)
{
    return {name, [=] {
                auto view = std::make_unique<Help>(sections);
                view->resize(size);
                setup(*view);
                return view;
            }};
}

} // namespace

QList<Scene> helpScenes()
{
    return {
        help(u"help-first"_s, smallest, HelpLoader::load(), [](Help&) {}),
        help(u"help-blocks"_s, QSize(960, 680), everyKindOfBlock(), [](Help& view) { view.select(3); }),
        help(u"help-large"_s, QSize(1400, 900), everyKindOfBlock(), [](Help& view) { view.select(3); }),
        help(u"help-nothing-found"_s, smallest, everyKindOfBlock(), [](Help& view) { view.search(u"rebreather"_s); }),
        help(u"help-nothing-chosen"_s, smallest, everyKindOfBlock(),
             [](Help& view) {
                 view.search(u"rebreather"_s);
                 view.search({});
             }),
    };
}

} // namespace abissora::gallery
