// SPDX-License-Identifier: MIT
#include "KeptPictures.h"
#include "Literals.h"
#include "PictureComparison.h"
#include "StatCard.h"
#include "TestRunner.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QTemporaryDir>

using namespace abissora;
using namespace abissora::gallery;

namespace {

QDir keptFolder()
{
    return {QString::fromUtf8(KEPT_PICTURES)};
}

QImage kept(const KeptPicture& picture)
{
    QImage image(keptFolder().filePath(picture.fileName()));
    image.setDevicePixelRatio(picture.scale);
    return image;
}

/// Empty when the picture is as it was kept; else what was written for a person to look at.
QString judge(const KeptPicture& picture, const QImage& drawn, const QDir& out)
{
    const Comparison comparison = compare(kept(picture), drawn);
    if (comparison.alike())
        return {};
    const QString now = out.filePath(picture.fileName());
    const QString difference = out.filePath(u"difference-"_s + picture.fileName());
    if (!out.mkpath(u"."_s) || !drawn.save(now) || !comparison.difference.save(difference))
        return comparison.text() + u"; nothing could be written"_s;
    return u"%1; drawn: %2, difference: %3"_s.arg(comparison.text(), now, difference);
}

void recolor(QImage& image, const QColor& from, const QColor& to)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == from.rgb())
                image.setPixel(x, y, to.rgb());
        }
    }
}

/// Paints the ground over the label that shows the text.
void blank(QWidget& scene, const QString& text, const QColor& ground)
{
    for (QLabel* label : scene.findChildren<QLabel*>()) {
        if (label->text() != text || !label->isVisible())
            continue;
        auto* const cover = new QWidget(label);
        cover->setPalette(ground);
        cover->setAutoFillBackground(true);
        cover->resize(label->size());
        cover->show();
        return;
    }
    QFAIL(qPrintable(u"no label says "_s + text));
}

} // namespace

class tst_KeptPictures : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        applyTheme(*qApp, Scheme::Light);
        pinAppearance();
        m_usual = QApplication::font();
    }

    void cleanup() { QApplication::setFont(m_usual); }

    void scenesLookAsTheyDid_data()
    {
        QTest::addColumn<KeptPicture>("picture");
        for (const KeptPicture& picture : keptPictures())
            QTest::newRow(qPrintable(picture.fileName())) << picture;
    }

    void scenesLookAsTheyDid()
    {
        QFETCH(const KeptPicture, picture);
        const QString complaint = judge(picture, draw(picture), QDir(QString::fromUtf8(PICTURES_OUT)));
        QVERIFY2(complaint.isEmpty(), qPrintable(complaint));
    }

    void onlyTheseAreKept()
    {
        QStringList wanted;
        qint64 bytes = 0;
        for (const KeptPicture& picture : keptPictures()) {
            wanted.append(picture.fileName());
            bytes += QFileInfo(keptFolder().filePath(picture.fileName())).size();
        }
        wanted.sort();
        QCOMPARE(keptFolder().entryList(QDir::Files, QDir::Name), wanted);
        QVERIFY(bytes < 1'500'000);
    }

    void anotherFontRendererIsForgiven_data()
    {
        QTest::addColumn<QString>("scene");
        QTest::addColumn<QFont::HintingPreference>("hinting");
        QTest::addColumn<double>("size");
        for (const auto* scene : {"list", "overview", "equipment-form", "types"})
            QTest::addRow("%s, full hinting", scene) << QString::fromLatin1(scene) << QFont::PreferFullHinting << 10.0;
        for (const auto* scene : {"overview", "help-blocks"})
            QTest::addRow("%s, 1 %% smaller", scene)
                << QString::fromLatin1(scene) << QFont::PreferDefaultHinting << 9.9;
    }

    void anotherFontRendererIsForgiven()
    {
        QFETCH(const QString, scene);
        QFETCH(const QFont::HintingPreference, hinting);
        QFETCH(const double, size);
        const KeptPicture picture{scene};
        const QImage usual = draw(picture);
        QFont other = m_usual;
        other.setHintingPreference(hinting);
        other.setPointSizeF(size);
        QApplication::setFont(other);
        const QImage drawn = draw(picture);
        QVERIFY(drawn != usual);
        const Comparison comparison = compare(kept(picture), drawn);
        QVERIFY2(comparison.alike(), qPrintable(comparison.text()));
    }

    void aShiftedCardIsFound()
    {
        const KeptPicture picture{u"overview"_s};
        const QImage drawn = draw(picture, [](QWidget& scene) {
            auto* const card = scene.findChild<StatCard*>();
            card->move(card->pos() + QPoint(6, 0));
        });
        QVERIFY(!compare(kept(picture), drawn).alike());
    }

    void aMissingTextIsFound_data()
    {
        QTest::addColumn<QString>("scene");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("onCard");
        QTest::newRow("title") << u"overview"_s << u"Panoramica Manutenzione"_s << false;
        QTest::newRow("label") << u"maintenance-form"_s << u"Descrizione*"_s << true;
    }

    void aMissingTextIsFound()
    {
        QFETCH(const QString, scene);
        QFETCH(const QString, text);
        QFETCH(const bool, onCard);
        const KeptPicture picture{scene};
        const Tokens& tokens = Tokens::of(Scheme::Light);
        const QImage drawn =
            draw(picture, [&](QWidget& shown) { blank(shown, text, onCard ? tokens.surface : tokens.window); });
        QVERIFY(!compare(kept(picture), drawn).alike());
    }

    void anotherColorIsFound_data()
    {
        QTest::addColumn<QColor>("from");
        QTest::addColumn<QColor>("to");
        const Tokens& tokens = Tokens::of(Scheme::Light);
        QTest::newRow("window") << tokens.window << tokens.sidebar;
        QTest::newRow("surface") << tokens.surface << tokens.window;
        QTest::newRow("accent") << tokens.accentFill << tokens.ok;
        QTest::newRow("selection") << tokens.selection << tokens.accentTint;
    }

    void anotherColorIsFound()
    {
        QFETCH(const QColor, from);
        QFETCH(const QColor, to);
        const KeptPicture picture{u"list"_s};
        QImage drawn = draw(picture);
        recolor(drawn, from, to);
        QVERIFY(!compare(kept(picture), drawn).alike());
    }

    void whatFailsIsWrittenDown()
    {
        const QTemporaryDir folder;
        const QDir out(folder.filePath(u"failed"_s));
        const KeptPicture picture{u"control-menu"_s};
        QImage drawn = draw(picture);
        QCOMPARE(judge(picture, drawn, out), QString());
        QVERIFY(!out.exists());
        drawn.fill(Qt::black);
        const QString complaint = judge(picture, drawn, out);
        for (const auto* file : {"control-menu-light@1.png", "difference-control-menu-light@1.png"}) {
            const QString path = out.filePath(QString::fromLatin1(file));
            QVERIFY(complaint.contains(path));
            QVERIFY(!QImage(path).isNull());
        }
    }

private:
    QFont m_usual;
};

ABISSORA_TEST(tst_KeptPictures);
#include "tst_KeptPictures.moc"
