// SPDX-License-Identifier: MIT
#include "Picture.h"
#include "RegisterFixture.h"
#include "UpdateView.h"

#include <QPlainTextEdit>

using namespace abissora;
using namespace abissora::test;

class tst_SettingsPictures : public PictureTest
{
    Q_OBJECT

private Q_SLOTS:
    void theNotesOfAReleaseShowTheirFocus()
    {
        RegisterFixture f;
        const UpdateInfo update{u"1.3.0"_s, 57, QUrl(u"https://abissora.example/"_s), u"Ricerca nella guida"_s};
        UpdateView view(update, f.product.websiteURL, f.opener);
        view.show();
        auto& notes = *view.findChild<QPlainTextEdit*>();
        QWidget& page = *notes.viewport();
        view.setFocus();
        const Picture usual = drawn(page);
        QVERIFY(usual.framed(page.rect(), tokens().accentInk, 2) != fine);
        QCOMPARE(usual.inked(page.rect(), usual.at({0, 0}), tokens().text), fine);
        static_cast<void>(drawnFocused(notes));
        QCOMPARE(drawn(page).framed(page.rect(), tokens().accentInk, 2), fine);
    }
};

ABISSORA_TEST(tst_SettingsPictures);
#include "tst_SettingsPictures.moc"
