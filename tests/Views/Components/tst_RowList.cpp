// SPDX-License-Identifier: MIT
#include "ComponentTest.h"
#include "Gui.h"
#include "Literals.h"
#include "RowList.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

using namespace abissora;
using namespace abissora::test;

namespace {

constexpr int gap = 5;
constexpr int border = 2;

struct TextRow : QWidget
{
    explicit TextRow(QWidget* parent)
        : QWidget(parent)
        , label(new QLabel)
        , first(new QPushButton(u"1"_s))
        , second(new QPushButton(u"2"_s))
    {
        label->setWordWrap(true);
        auto* layout = new QHBoxLayout(this);
        layout->addWidget(label, 1);
        layout->addWidget(first);
        layout->addWidget(second);
    }

    QLabel* label;
    QPushButton* first;
    QPushButton* second;
};

/// Texts with a blank may take several lines.
struct TextList : RowList
{
    TextList(QScrollArea& area, Keys keys)
        : RowList(area, {.keys = keys, .gap = gap, .border = border})
    {}

    void setTexts(const QStringList& shown)
    {
        texts = shown;
        QList<QUuid> ids;
        for (const QString& text : texts)
            ids.append(QUuid::createUuidV5(QUuid(), text));
        showItems(ids);
    }
    QWidget* makeRow() override { return new TextRow(this); }
    void fillRow(QWidget& row, qsizetype index) override
    {
        static_cast<TextRow&>(row).label->setText(texts.at(index));
        row.setAccessibleName(texts.at(index));
    }
    QString shapeOf(const QWidget&, qsizetype index) const override
    {
        return texts.at(index).contains(u' ') ? texts.at(index) : QString();
    }
    void rowsChanged() override { ++changes; }

    TextRow& row(const QString& text) const
    {
        for (TextRow* row : rowsAs<TextRow>()) {
            if (row->label->text() == text)
                return *row;
        }
        qFatal("no row shows %s", qUtf8Printable(text));
    }

    QStringList texts;
    int changes = 0;
};

QStringList numbered(int count)
{
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts.append(QString::number(i));
    return texts;
}

/// A field, the list and another field below one another in a scroll area.
struct ShownRows
{
    explicit ShownRows(const QStringList& texts, RowList::Keys keys = RowList::Keys::Free)
    {
        area.setWidgetResizable(true);
        area.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        area.setFocusPolicy(Qt::NoFocus);
        auto* content = new QWidget;
        auto* layout = new QVBoxLayout(content);
        list = new TextList(area, keys);
        before = new QLineEdit;
        after = new QLineEdit;
        for (QWidget* widget : std::initializer_list<QWidget*>{before, list, after})
            layout->addWidget(widget);
        layout->addStretch();
        area.setWidget(content);
        list->setTexts(texts);
        area.resize(300, 400);
        activate(area);
    }

    void press(Qt::Key key) const { QTest::keyClick(area.focusWidget(), key); }
    void scrollTo(double share) const
    {
        QScrollBar& bar = *area.verticalScrollBar();
        bar.setValue(static_cast<int>(bar.maximum() * share));
    }
    /// "text/button" of what has the focus.
    QString focused() const
    {
        const QWidget* const widget = QApplication::focusWidget();
        const auto* const row = widget != nullptr ? dynamic_cast<TextRow*>(widget->parentWidget()) : nullptr;
        if (row == nullptr)
            return widget == before ? u"before"_s : widget == after ? u"after"_s : u"nowhere"_s;
        return row->label->text() + u'/' + static_cast<const QPushButton*>(widget)->text();
    }
    bool isInSight(const QWidget& widget) const
    {
        return area.viewport()->rect().contains(QRect(widget.mapTo(area.viewport(), QPoint()), widget.size()));
    }

    QScrollArea area;
    TextList* list;
    QLineEdit* before;
    QLineEdit* after;
};

/// Whether the rows stand below one another, each as high as its text needs, the first and the last at the borders.
bool isWellPlaced(const TextList& list)
{
    int bottom = -1;
    for (const QWidget* row : list.rows()) {
        const int index = static_cast<int>(list.texts.indexOf(static_cast<const TextRow*>(row)->label->text()));
        if (row->height() != row->heightForWidth(list.width()) || row->width() != list.width())
            return false;
        if (index == 0 ? row->y() != border : row->y() < bottom + gap)
            return false;
        bottom = row->y() + row->height();
    }
    return bottom + border == list.height();
}

} // namespace

class tst_RowList : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void fewRowsExistHoweverManyItems()
    {
        ShownRows s(numbered(10'000));
        const int pitch = s.list->row(u"1"_s).y() - s.list->row(u"0"_s).y();
        QCOMPARE(pitch, s.list->row(u"0"_s).height() + gap);
        QCOMPARE(s.list->height(), 10'000 * pitch - gap + 2 * border);
        for (int i = 0; i <= 20; ++i) {
            s.scrollTo(i / 20.0);
            QVERIFY(isWellPlaced(*s.list));
            QVERIFY(s.list->findChildren<QPushButton*>().size() < qsizetype{2} * 30);
        }
        QVERIFY(s.isInSight(s.list->row(u"9998"_s)));
    }

    void whatIsInSightIsThere()
    {
        ShownRows s(numbered(1000));
        s.scrollTo(0.4);
        QRegion covered;
        for (const QWidget* row : s.list->rows())
            covered += row->geometry().adjusted(0, 0, 0, gap);
        const QRect sight(s.list->mapFrom(s.area.viewport(), QPoint()), s.area.viewport()->size());
        QVERIFY(QRegion(sight & s.list->rect()).subtracted(covered).isEmpty());
        const auto before = s.list->rows().size();
        s.area.resize(300, 800);
        settle();
        QVERIFY(s.list->rows().size() > before);
    }

    void everyRowIsAsHighAsItsText()
    {
        QStringList texts = numbered(200);
        for (int i = 0; i < 200; i += 3)
            texts[i] += u" parola"_s.repeated(i);
        ShownRows s(texts);
        const int height = s.list->height();
        for (const double share : {0.0, 0.3, 0.7, 1.0}) {
            s.scrollTo(share);
            QVERIFY(isWellPlaced(*s.list));
        }
        QCOMPARE(s.list->height(), height); // known before the rows came in sight
        QVERIFY(s.list->row(texts.at(198)).height() > 10 * s.list->row(texts.at(199)).height());
        s.area.resize(500, 400);
        settle();
        QVERIFY(s.list->height() < height);
        QVERIFY(isWellPlaced(*s.list));
    }

    void theTextSizeChanges()
    {
        ShownRows s({u"uno"_s, u"due parole "_s.repeated(20), u"tre"_s});
        const int before = s.list->height();
        QFont larger = s.area.font();
        larger.setPointSizeF(2 * larger.pointSizeF());
        s.area.setFont(larger);
        settle();
        QVERIFY(s.list->height() > before + 100);
        QVERIFY(isWellPlaced(*s.list));
    }

    void tabWalksThroughEveryRow()
    {
        ShownRows s(numbered(60));
        s.before->setFocus();
        for (int i = 0; i < 60; ++i) {
            for (const QString& button : {u"1"_s, u"2"_s}) {
                s.press(Qt::Key_Tab);
                QCOMPARE(s.focused(), QString::number(i) + u'/' + button);
            }
            QVERIFY(s.isInSight(*s.area.focusWidget()));
        }
        s.press(Qt::Key_Tab);
        QCOMPARE(s.focused(), u"after"_s);
        for (int i = 59; i >= 0; --i) {
            for (const QString& button : {u"2"_s, u"1"_s}) {
                s.press(Qt::Key_Backtab);
                QCOMPARE(s.focused(), QString::number(i) + u'/' + button);
            }
        }
        s.press(Qt::Key_Backtab);
        QCOMPARE(s.focused(), u"before"_s);
    }

    void keysWalkThroughTheRows()
    {
        ShownRows s(numbered(500), RowList::Keys::WalkRows);
        s.list->row(u"0"_s).second->setFocus(Qt::TabFocusReason);
        const auto expect = [&s](Qt::Key key, int index) {
            s.press(key);
            QCOMPARE(s.focused(), QString::number(index) + u"/2"_s);
            QVERIFY(s.isInSight(*s.area.focusWidget()->parentWidget()));
        };
        expect(Qt::Key_Up, 0);
        expect(Qt::Key_Down, 1);
        expect(Qt::Key_End, 499);
        expect(Qt::Key_Down, 499);
        expect(Qt::Key_Up, 498);
        expect(Qt::Key_Home, 0);
        s.press(Qt::Key_PageDown);
        const int page = s.focused().section(u'/', 0, 0).toInt();
        QVERIFY(page > 2);
        expect(Qt::Key_PageDown, 2 * page);
        expect(Qt::Key_PageUp, page);
    }

    void keysAreLeftAloneOtherwise()
    {
        ShownRows s(numbered(500));
        s.list->row(u"3"_s).first->setFocus();
        for (const Qt::Key key : {Qt::Key_End, Qt::Key_PageDown, Qt::Key_Home})
            s.press(key);
        QCOMPARE(s.focused(), u"3/1"_s);
    }

    void scrollingKeepsTheFocusAndThePlaceOfTheLastVisit()
    {
        ShownRows s(numbered(500));
        s.list->row(u"3"_s).second->setFocus();
        s.scrollTo(1);
        s.scrollTo(0.5);
        QCOMPARE(s.focused(), u"3/2"_s);
        s.press(Qt::Key_Tab);
        QCOMPARE(s.focused(), u"4/1"_s);
        s.after->setFocus();
        s.scrollTo(0.8);
        QVERIFY(s.list->row(u"4"_s).isVisible());
    }

    void theFocusStaysOnItsItem_data()
    {
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QString>("focused");
        QTest::addColumn<int>("index");
        QTest::newRow("the same") << numbered(9) << u"5/2"_s << 5;
        QTest::newRow("fewer before it") << numbered(9).mid(3) << u"5/2"_s << 2;
        QTest::newRow("more before it") << QStringList{u"x"_s} + numbered(9) << u"5/2"_s << 6;
        QTest::newRow("far away") << numbered(9).mid(6) + numbered(6) << u"5/2"_s << 8;
        QTest::newRow("it is gone") << QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s} << u"f/2"_s << 5;
        QTest::newRow("its place is gone as well") << numbered(2) << u"1/2"_s << 1;
    }

    void theFocusStaysOnItsItem()
    {
        QFETCH(QStringList, texts);
        QFETCH(int, index);
        ShownRows s(numbered(9));
        s.list->row(u"5"_s).second->setFocus();
        s.list->setTexts(texts);
        settle();
        QTEST(s.focused(), "focused");
        QCOMPARE(s.list->rows().at(index), QApplication::focusWidget()->parentWidget());
        QVERIFY(isWellPlaced(*s.list));
        if (index + 1 < texts.size()) {
            s.press(Qt::Key_Tab);
            QCOMPARE(s.focused(), texts.at(index + 1) + u"/1"_s);
        }
    }

    void theLastItemLeavesTheFocusToWhatFollows()
    {
        ShownRows s(numbered(3));
        s.list->row(u"1"_s).first->setFocus();
        s.list->setTexts({});
        settle();
        QCOMPARE(s.focused(), u"after"_s);
        QCOMPARE(s.list->rows(), QList<QWidget*>());
        s.list->setTexts(numbered(3));
        QCOMPARE(s.list->rows().size(), 3);
    }

    void heirsHearOfOtherRows()
    {
        ShownRows s(numbered(500));
        s.list->changes = 0;
        s.area.verticalScrollBar()->setValue(1);
        QCOMPARE(s.list->changes, 0);
        s.scrollTo(0.5);
        QCOMPARE(s.list->changes, 1);
    }

    void screenReadersFindTheRowsInTheirOrder()
    {
        ShownRows s({u"b"_s, u"c"_s, u"d"_s});
        s.list->setTexts({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
        s.list->row(u"d"_s).first->setFocus();
        s.list->setTexts({u"d"_s, u"a"_s, u"b"_s, u"c"_s});
        QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(s.list);
        QCOMPARE(list->role(), QAccessible::List);
        QStringList read;
        for (int i = 0; i < list->childCount(); ++i) {
            QCOMPARE(list->child(i)->role(), QAccessible::ListItem);
            QCOMPARE(list->indexOfChild(list->child(i)), i);
            QCOMPARE(list->child(i)->parent(), list);
            read.append(list->child(i)->text(QAccessible::Name));
        }
        QCOMPARE(read, QStringList({u"d"_s, u"a"_s, u"b"_s, u"c"_s}));
    }

    void aLineStandsInTheMiddleOfEveryGap()
    {
        ShownRows s(numbered(3));
        const QImage image = s.list->grab().toImage();
        QList<int> lines;
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixel(border, y) != image.pixel(0, y))
                lines.append(y);
        }
        const int pitch = s.list->row(u"0"_s).height() + gap;
        QCOMPARE(lines, QList<int>({border + pitch - 3, border + 2 * pitch - 3}));
    }
};

ABISSORA_TEST(tst_RowList);

#include "tst_RowList.moc"
