// SPDX-License-Identifier: MIT
#include "CardGrid.h"

#include "TestRunner.h"

#include <QWidget>

using namespace abissora;

namespace {

class Box final : public QWidget
{
public:
    [[nodiscard]] QSize sizeHint() const override { return {120, 50}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {100, 50}; }
};

/// A grid of boxes that need a width of 100 each.
struct ShownGrid
{
    ShownGrid(int boxes, int columns)
        : layout(new CardGrid(columns))
    {
        host.setLayout(layout);
        for (int i = 0; i < boxes; ++i)
            layout->addWidget(new Box);
    }

    [[nodiscard]] QRect place(int index) const { return layout->itemAt(index)->geometry(); }

    QWidget host;
    CardGrid* layout;
};

} // namespace

class tst_CardGrid : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void rowsAreAlwaysFull_data()
    {
        QTest::addColumn<int>("boxes");
        QTest::addColumn<int>("columns");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("expectedRows");
        QTest::newRow("4 in a row") << 4 << 4 << 448 << 1;
        QTest::newRow("4 without room for 4") << 4 << 4 << 447 << 2;
        QTest::newRow("4 without room for 2") << 4 << 4 << 215 << 4;
        QTest::newRow("6 in rows of 3") << 6 << 3 << 1000 << 2;
        QTest::newRow("6 without room for 3") << 6 << 3 << 331 << 3;
        QTest::newRow("too narrow for one") << 4 << 4 << 50 << 4;
    }

    void rowsAreAlwaysFull()
    {
        QFETCH(int, boxes);
        QFETCH(int, columns);
        QFETCH(int, width);
        QFETCH(int, expectedRows);
        const ShownGrid s(boxes, columns);
        const int height = expectedRows * 50 + (expectedRows - 1) * 16;
        QCOMPARE(s.layout->heightForWidth(width), height);
        s.layout->setGeometry(QRect(0, 0, width, height));
        QCOMPARE(s.place(boxes - 1).bottom() + 1, height);
        QCOMPARE(s.place(boxes - 1).right() + 1, width);
    }

    void columnsDifferByAPixelAtMostAndGapsNever()
    {
        const ShownGrid s(4, 4);
        s.layout->setGeometry(QRect(10, 20, 999, 50));
        QCOMPARE(s.place(0).topLeft(), QPoint(10, 20));
        QCOMPARE(s.place(3).right(), 10 + 999 - 1);
        for (int i = 1; i < 4; ++i) {
            QCOMPARE(s.place(i).left() - s.place(i - 1).right() - 1, 16);
            QVERIFY(std::abs(s.place(i).width() - s.place(0).width()) <= 1);
        }
    }

    void nothing()
    {
        const ShownGrid s(0, 4);
        QCOMPARE(s.layout->heightForWidth(500), 0);
        s.layout->setGeometry(QRect(0, 0, 500, 0));
    }
};

ABISSORA_TEST(tst_CardGrid);

#include "tst_CardGrid.moc"
