// SPDX-License-Identifier: MIT
#include "Painting.h"
#include "Picture.h"
#include "TypesParts.h"

#include <QRadioButton>

using namespace abissora;
using namespace abissora::test;

class tst_TypePictures : public PictureTest
{
    Q_OBJECT

private Q_SLOTS:
    void linesPartTheTypes()
    {
        RegisterFixture f;
        const OpenManagement open(f);
        TypeList& list = *open.sheet.findChild<TypeList*>();
        const Picture picture = drawn(list);
        const QColor ground = picture.at({2, 4});
        for (const TypeRow* row : open.rows().mid(0, 3)) {
            const auto within = [row](const char* part) {
                return existing(*row, part).geometry().translated(row->pos());
            };
            QCOMPARE(picture.inked(within("typeName"), ground, tokens().text), fine);
            QCOMPARE(picture.inked(within("typeInterval"), ground, tokens().secondaryText), fine);
        }
        const QRect first = open.rows().at(0)->geometry();
        const QRect second = open.rows().at(1)->geometry();
        const Ink line = picture.ink(QRect(2, first.bottom() - 3, 1, second.top() - first.bottom() + 6), ground);
        QCOMPARE(line.core, tokens().divider);
        QCOMPARE(line.area, 1);
        QCOMPARE(picture.filled(QRectF(2, line.bounds.top(), list.width() - 4, 1), tokens().divider, 1), fine);
        QCOMPARE(picture.bare(QRect(2, 1, 1, first.center().y()), ground), fine);
    }

    void colorsAreDiscs()
    {
        RegisterFixture f;
        TypeForm form(f, std::optional(boa())); // in orange
        const auto swatches = form.sheet.findChildren<QRadioButton*>();
        QVERIFY(swatches.size() > 5);
        for (QRadioButton* swatch : swatches) {
            const QColor color =
                tokens().named(EquipmentTypeModel{{}, {}, {}, swatch->objectName(), 1, true}.colorValue());
            const Picture picture = drawn(*swatch);
            const QColor ground = picture.at({0, 0});
            const QRect middle(7, 7, swatch->width() - 14, swatch->height() - 14);
            QVERIFY(picture.amount(middle, color) > 60);
            QCOMPARE(picture.at({swatch->width() - 1.0, 0}), ground); // round
            const bool chosen = swatch->isChecked();
            QCOMPARE(chosen, swatch->objectName() == boa().color);
            const QRect rim(swatch->width() / 2 - 4, 0, 8, 2); // of a ring around the disc
            QCOMPARE(picture.amount(rim, tokens().accentInk) > 6, chosen);
            if (chosen)
                QCOMPARE(picture.inked(middle, color, tokens().surface), fine); // its mark
            else
                QCOMPARE(picture.bare(middle, color), fine);
        }
    }

    void picturesStandInCells()
    {
        RegisterFixture f;
        TypeForm form(f, std::optional(boa()));
        int chosen = 0;
        for (DivingIconButton* button : form.sheet.findChildren<DivingIconButton*>()) {
            const Picture picture = drawn(*button);
            const QRect middle = picture.rect().adjusted(8, 8, -8, -8);
            const bool checked = button->isChecked();
            chosen += checked ? 1 : 0;
            QCOMPARE(picture.framed(picture.rect(), checked ? tokens().accentInk : tokens().border, 1), fine);
            QCOMPARE(picture.inked(middle, checked ? tokens().accentTint : tokens().surface,
                                   checked ? tokens().named(NamedColor::blue) : tokens().text),
                     fine);
        }
        QCOMPARE(chosen, 1);
        auto& any = *form.sheet.findChildren<DivingIconButton*>().constFirst();
        QCOMPARE(drawnFocused(any).framed(any.rect(), tokens().accentInk, 2), fine);
    }
};

ABISSORA_TEST(tst_TypePictures);
#include "tst_TypePictures.moc"
