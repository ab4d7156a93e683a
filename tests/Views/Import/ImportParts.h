// SPDX-License-Identifier: MIT
#pragma once

#include "Builders.h"
#include "Gui.h"
#include "ImportTable.h"
#include "ImportView.h"
#include "RegisterFixture.h"
#include "ViewSheet.h"

#include <QComboBox>

namespace abissora::test {

/// Three new rows, one that the register of ImportRegister has, one with a day that is none.
inline const QByteArray clubTable = "nome;categoria;marca;modello;matricola;scadenza;colore\r\n"
                                    "Erogatore MK25;Erogatore;Scubapro;MK25 EVO;SP-220418;12/05/2027;nero\r\n"
                                    "Bombola 12L;Bombola;Luxfer;12L 207 bar;;03/09/2027;\r\n"
                                    "GAV di prova;GAV;;;sn-01;21/12/2026;\r\n"
                                    "Torcia di riserva;Torcia;Big Blue;AL1200;BB-1;31/02/2024;\r\n"
                                    "Pinne;Pinne;Mares;Avanti Q+;;15/4/28;\r\n";

/// One item, whose serial number is "SN-01".
class ImportRegister : public RegisterFixture
{
public:
    ImportRegister()
        : RegisterFixture(QList{abissora::test::equipment(1)})
    {}

    [[nodiscard]] ImportPlan plan(const QByteArray& bytes)
    {
        return {parseImport(u"club.csv"_s, bytes).value(),
                {equipment.equipment(), types.types(), calendar, clock.now(), u"€"_s}};
    }
};

/// The sheet over a window, with what a person finds in it.
class ShownImport
{
public:
    ShownImport(
        ImportRegister& f, const QByteArray& bytes, ImportView::Import import = [](const ImportPlan&) {})
    {
        window.resize(1280, 800);
        window.show();
        sheet = ImportView::makeSheet(f.plan(bytes), f.types, f.work, std::move(import), &window);
        sheet->open();
        activate(*sheet);
    }

    [[nodiscard]] ImportTable& table() const { return part<ImportTable>(*sheet, u"importTable"); }
    [[nodiscard]] QComboBox& picker(int column) const { return part<QComboBox>(*sheet, u"column%1"_s.arg(column)); }
    void choose(int column, const QString& title) const
    {
        QComboBox& combo = picker(column);
        combo.setFocus();
        combo.setCurrentIndex(combo.findText(title));
        Q_EMIT combo.activated(combo.currentIndex());
        settle();
    }
    [[nodiscard]] QString cell(int row, int column) const
    {
        return table().model()->index(row, column).data().toString();
    }
    [[nodiscard]] QList<bool> chosen() const
    {
        QList<bool> all;
        for (int row = 0; row < table().model()->rowCount(); ++row)
            all.append(table().model()->index(row, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked);
        return all;
    }

    QWidget window;
    ViewSheet* sheet;
};

} // namespace abissora::test
