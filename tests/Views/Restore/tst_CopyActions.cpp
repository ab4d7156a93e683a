// SPDX-License-Identifier: MIT
#include "Alert.h"
#include "ArchiveRestoration.h"
#include "Buttons.h"
#include "ClippedTexts.h"
#include "CopyActions.h"
#include "Restoration.h"
#include "RestoreParts.h"
#include "ScaledText.h"
#include "TestRunner.h"
#include "Theme.h"

#include <QTest>

using namespace abissora;
using namespace abissora::test;

namespace {

/// The actions over a register, and a place for copies.
struct Copies
{
    explicit Copies(RegisterFixture& fixture)
        : f(fixture)
    {
        window.resize(1000, 700);
        activate(window);
    }

    [[nodiscard]] QString path() const { return place.filePath(u"copia.zip"_s); }
    [[nodiscard]] QStringList filesInPlace() const
    {
        return QDir(place.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    /// What the notice says, once it is there; it goes.
    [[nodiscard]] QString dismissNotice()
    {
        auto* const alert = window.findChild<Alert*>();
        if (alert == nullptr)
            return {};
        const QString message = alert->message();
        alert->reject();
        settle();
        return message;
    }
    void create()
    {
        f.panel.answer(path());
        actions.createCopy(&window);
        settle();
    }

    RegisterFixture& f;
    QTemporaryDir place;
    QWidget window;
    int settled = 0;
    int restored = 0;
    CopyActions actions{
        {f.panel, f.work, f.directories, f.almanac, [this] { ++settled; },
         [this](const UnpackedArchive& copy, const RestorableFiles& files) {
             ++restored;
             return ArchiveRestoration(f.directories, f.generations, f.permission, f.clock.now()).restore(copy, files);
         }}};
};

/// The sheet with a button for copies.
struct ShownWithCopies
{
    ShownWithCopies(RegisterFixture& f, Copies& copies, QSize size = {1000, 700})
        : lookedAt(f.directories.windowStateFile())
    {
        copies.window.resize(size);
        sheet = RestoreView::makeSheet(
            {f.generations, f.archive, f.equipment, f.types, f.settings, f.work, f.almanac}, lookedAt,
            [this](const EarlierState& state, const std::shared_ptr<WorkProgress>&) {
                asked.append(state.name);
                return ended({});
            },
            &copies.window, &copies.actions);
        sheet->open();
        activate(*sheet);
    }

    [[nodiscard]] QStringList groups() const
    {
        QStringList texts;
        for (const QWidget* group : sheet->findChildren<QWidget*>(u"differenceGroup"_s))
            texts.append(group->accessibleName());
        return texts;
    }
    [[nodiscard]] QString text(QAnyStringView name) const { return existing<QLabel>(*sheet, name).text(); }
    [[nodiscard]] int chosenStates() const
    {
        const QList<StateButton*> all = sheet->findChildren<StateButton*>();
        return int(std::ranges::count_if(
            all, [](const StateButton* button) { return button->isVisible() && button->isChecked(); }));
    }

    LookedAtStates lookedAt;
    QStringList asked;
    QPointer<ViewSheet> sheet;
};

} // namespace

class tst_CopyActions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void aCopyIsMadeWhereThePersonSays()
    {
        KeptRegister f;
        Copies c(f);
        c.create();
        const SavePanelRequest request = f.panel.saveRequests().first();
        QCOMPARE(request.suggestedName, u"abissora-"_s + f.calendar.local(f.clock.now()).date().toString(Qt::ISODate));
        QCOMPARE(request.formats, (QList{SaveFormat{u"Copia del registro"_s, u"zip"_s}}));
        QCOMPARE(c.settled, 1);
        const QString said = c.dismissNotice();
        QVERIFY2(said.startsWith(u"La copia «copia.zip» contiene: 2 articoli, 1 manutenzione, "_s), qPrintable(said));
        QVERIFY(ArchiveReader::read(c.path(), [](qint64, qint64) { return true; }));
    }

    void whatFailsIsSaidAndWhatIsCancelledIsNot()
    {
        KeptRegister f;
        Copies c(f);
        f.panel.answer(f.path(u"a.zip"_s));
        c.actions.createCopy(&c.window);
        settle();
        QVERIFY(c.dismissNotice().contains(u"cartella del registro"_s));
        f.panel.answer(std::nullopt);
        c.actions.createCopy(&c.window);
        settle();
        QCOMPARE(c.dismissNotice(), QString());
        QCOMPARE(c.filesInPlace(), QStringList());
    }

    void aCopyIsShownAsAStateAndRestored()
    {
        KeptRegister f;
        Copies c(f);
        c.create();
        static_cast<void>(c.dismissNotice());
        // Since then an item has gone and another one has come.
        f.equipment.deleteEquipment(f.equipment.equipment().last());
        f.equipment.addEquipment(gear(9, u"Nuovo"_s));
        const QByteArray before = f.content(registerFile);
        ShownWithCopies s(f, c);
        QCOMPARE(s.chosenStates(), 1);
        f.panel.answer(c.path());
        click(*s.sheet, u"fromFile");
        settle();
        QCOMPARE(f.panel.requests().first().contentTypes, QStringList{u"application/zip"_s});
        QVERIFY(!f.panel.requests().first().accepts(f.path(registerFile)));
        QVERIFY(f.panel.requests().first().accepts(c.path()));
        QVERIFY(s.text(u"stateTitle").startsWith(u"Copia del "_s));
        QCOMPARE(s.text(u"stateSubtitle"), u"Che cosa cambia rispetto ad adesso"_s);
        QCOMPARE(s.groups(), QStringList({u"Tornano: 1"_s, u"Spariscono: 1"_s}));
        QCOMPARE(s.chosenStates(), 0);
        QCOMPARE(f.content(registerFile), before);

        click(*s.sheet, u"restore");
        settle();
        QCOMPARE(c.restored, 1);
        QCOMPARE(s.asked, QStringList());
        QCOMPARE(decodeEquipment(f.content(registerFile)).value().size(), 2);
        QVERIFY(!s.sheet || !s.sheet->isVisible());
        QCOMPARE(f.generations.list().constFirst().occasion, Occasion::restoration);
    }

    void aStateThatIsChosenAfterwardsCounts()
    {
        KeptRegister f;
        Copies c(f);
        c.create();
        static_cast<void>(c.dismissNotice());
        ShownWithCopies s(f, c);
        f.panel.answer(c.path());
        click(*s.sheet, u"fromFile");
        settle();
        const QList<StateButton*> states = s.sheet->findChildren<StateButton*>();
        const auto visible = std::ranges::find_if(states, [](const StateButton* b) { return b->isVisible(); });
        QTest::mouseClick(*visible, Qt::LeftButton);
        settle();
        QVERIFY(!s.text(u"stateTitle").startsWith(u"Copia"_s));
        click(*s.sheet, u"restore");
        QCOMPARE(c.restored, 0);
        QCOMPARE(s.asked.size(), 1);
    }

    void aDamagedCopyIsRefusedInPlace()
    {
        KeptRegister f;
        Copies c(f);
        QFile file(c.path());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("PK\3\4 and nothing else") > 0);
        file.close();
        ShownWithCopies s(f, c);
        const QString title = s.text(u"stateTitle");
        f.panel.answer(c.path());
        click(*s.sheet, u"fromFile");
        settle();
        QCOMPARE(s.text(u"restoreError"), u"La copia è incompleta o danneggiata."_s);
        QCOMPARE(s.text(u"stateTitle"), title);
        QCOMPARE(s.chosenStates(), 1);
        // And one that was changed between the look and the restoration.
        QVERIFY(file.remove());
        c.create();
        static_cast<void>(c.dismissNotice());
        f.panel.answer(c.path());
        click(*s.sheet, u"fromFile");
        settle();
        QVERIFY(s.text(u"restoreError").isEmpty());
        const QByteArray before = f.content(registerFile);
        QVERIFY(file.resize(file.size() - 1));
        click(*s.sheet, u"restore");
        settle();
        QVERIFY(!s.text(u"restoreError").isEmpty());
        QCOMPARE(c.restored, 0);
        QCOMPARE(f.content(registerFile), before);
    }

    void withoutAnyStateACopyCanBeChosen()
    {
        KeptRegister f;
        Copies c(f);
        c.create();
        static_cast<void>(c.dismissNotice());
        f.forgetStates();
        ShownWithCopies s(f, c);
        QVERIFY(part(*s.sheet, u"noStates").isVisible());
        f.panel.answer(c.path());
        click(*s.sheet, u"fromFile");
        settle();
        QVERIFY(!existing(*s.sheet, u"noStates").isVisible());
        QCOMPARE(s.text(u"stateSubtitle"), u"Uguale ad adesso"_s);
        QVERIFY(part<QWidget>(*s.sheet, u"promise").isVisible());
        QVERIFY(part<QAbstractButton>(*s.sheet, u"restore").isEnabled());
    }

    void nothingIsClipped_data()
    {
        QTest::addColumn<double>("text");
        QTest::newRow("usual") << 1.0;
        QTest::newRow("larger") << 1.25;
    }

    void nothingIsClipped()
    {
        QFETCH(double, text);
        const ScaledText scaled(text);
        KeptRegister f;
        Copies c(f);
        c.create();
        static_cast<void>(c.dismissNotice());
        ShownWithCopies s(f, c);
        f.panel.answer(c.path());
        click(*s.sheet, u"fromFile");
        settle();
        QCOMPARE(clippedTexts(*s.sheet), QStringList());
        const QWidget& button = part(*s.sheet, u"fromFile");
        QCOMPARE(button.accessibleName().isEmpty() ? part<QAbstractButton>(*s.sheet, u"fromFile").text()
                                                   : button.accessibleName(),
                 u"Da un file…"_s);
        QVERIFY(button.x() < part(*s.sheet, u"promise").x());
    }

    void withoutCopiesThereIsNoButton()
    {
        KeptRegister f;
        const ShownRestore s(f);
        QVERIFY(!existing(*s.sheet, u"fromFile").isVisible());
    }
};

ABISSORA_TEST(tst_CopyActions);
#include "tst_CopyActions.moc"
