// SPDX-License-Identifier: MIT
#include "ImportView.h"
#include "Literals.h"
#include "ScreenStage.h"
#include "ViewSheet.h"

namespace abissora::gallery {

namespace {

const QByteArray clubTable = "nome;categoria;marca;modello;matricola;scadenza\n"
                             "Erogatore Scubapro MK25;Erogatore;Scubapro;MK25 EVO;SP-220418;12/05/2027\n"
                             "Bombola 12L alluminio;Bombola;Luxfer;12L 207 bar;LX-77120;03/09/2027\n"
                             "GAV Scubapro Hydros;GAV;Scubapro;Hydros Pro;HY-30915;21/12/2026\n"
                             "Muta semistagna 7 mm;Muta;Mares;Pro Therm;MR-5567;30/06/2027\n"
                             "Torcia di riserva;Torcia;Big Blue;AL1200;BB-1200-8;31/02/2024\n"
                             "Pinne Mares Avanti Quattro;Pinne;Mares;Avanti Q+;;15/04/2028\n";

QByteArray recordsTable()
{
    QByteArray table = "Articolo;Data;Intervento;Lavori eseguiti;Officina;Prezzo;Esito;Garanzia\n";
    for (int i = 1; i <= 40; ++i)
        table += "GAV Scubapro Hydros;" + QByteArray::number(i % 28 + 1) + "/" + QByteArray::number(i % 12 + 1) +
                 "/20" + QByteArray::number(10 + i % 16) +
                 ";Riparazione;Sostituzione della frusta di bassa pressione e della cerniera, prova di tenuta;"
                 "Centro Sub Levante;" +
                 (i == 3 ? QByteArray("gratis") : QByteArray(QByteArray::number(i) + ",50")) +
                 (i == 5 ? ";forse" : ";no") + ";2 anni\n";
    return table;
}

/// The sheet by itself.
Scene importSheet(const QString& name, const QByteArray& table)
{
    return form(name, [table](test::ShellFixture& f) {
        const QList<Equipment> items = f.equipment.equipment();
        ImportPlan plan(parseImport(u"attrezzatura-club.csv"_s, table).value(),
                        {items, f.types.types(), f.calendar, f.clock.now(), u"€"_s});
        return std::unique_ptr<QWidget>(ImportView::makeSheet(
            std::move(plan), f.types, f.work, [](const ImportPlan&) {}, nullptr));
    });
}

} // namespace

QList<Scene> importScenes()
{
    return {
        importSheet(u"import"_s, clubTable),
        importSheet(u"import-records"_s, recordsTable()),
        importSheet(u"import-columns"_s,
                    QByteArray(clubTable).replace("nome;", "oggetti;").replace("marca", "modello")),
    };
}

} // namespace abissora::gallery
