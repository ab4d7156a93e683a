// SPDX-License-Identifier: MIT
#include "Builders.h"
#include "Literals.h"
#include "ScalarText.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;
using test::at;

namespace {

std::string written(Instant instant)
{
    const auto text = json::dateText(instant);
    return text ? std::string(text->begin(), text->end()) : "(none)";
}

} // namespace

class tst_ScalarText : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void datesThatExist_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("an ordinary one") << QByteArray("2025-03-14T09:26:53Z");
        QTest::newRow("before 1970") << QByteArray("1969-12-31T23:59:59Z");
        QTest::newRow("first second") << QByteArray("0001-01-01T00:00:00Z");
        QTest::newRow("last second") << QByteArray("9999-12-31T23:59:59Z");
        QTest::newRow("29 February") << QByteArray("2024-02-29T12:00:00Z");
        QTest::newRow("29 February 2000") << QByteArray("2000-02-29T12:00:00Z");
    }

    void datesThatExist()
    {
        QFETCH(QByteArray, text);
        const auto date = json::dateFromText(text.toStdString());
        QVERIFY(date);
        QCOMPARE(*date, at(text.constData()));
        QCOMPARE(written(*date), text.toStdString());
    }

    void wrongForms_data()
    {
        QTest::addColumn<QByteArray>("text");
        for (const char* text :
             {"", "Z", "2025-03-14", "09:26:53Z", "2025-03-14T09:26:53", "2025-03-14T09:26Z", "2025-03-14 09:26:53Z",
              "2025-03-14t09:26:53Z", "2025-03-14T09:26:53z", "2025-03-14T09:26:53.000Z", "2025-03-14T09:26:53,5Z",
              "2025-03-14T09:26:53+00:00", "2025-03-14T09:26:53+01", "2025-03-14T09:26:53ZZ", " 2025-03-14T09:26:53Z",
              "2025-03-14T09:26:53Z ", "2025-3-14T09:26:53Z", "2025-03-14T9:26:53Z", "25-03-14T09:26:53Z",
              "+2025-03-14T09:26:53Z", "-025-03-14T09:26:53Z", "12025-03-14T09:26:53Z", "20250314T092653Z",
              "2025/03/14T09:26:53Z", "2025-W11-5T09:26:53Z", "2025-073T09:26:53Z", "763637213", "14/03/2025 09:26:53",
              "2025-03-14T09:26:5aZ", "2025-03-1 T09:26:53Z", "\xD9\xA2\xD9\xA0-03-14T09:26:53Z",
              // forms that are right, days and times that are not
              "2025-02-29T00:00:00Z", "1900-02-29T00:00:00Z", "2025-04-31T00:00:00Z", "2025-00-14T09:26:53Z",
              "2025-13-14T09:26:53Z", "2025-03-00T09:26:53Z", "2025-03-32T09:26:53Z", "2025-03-14T24:00:00Z",
              "2025-03-14T09:60:53Z", "2025-03-14T09:26:60Z", "0000-01-01T00:00:00Z"})
            QTest::newRow(text) << QByteArray(text);
        QTest::newRow("a NUL at the end") << QByteArray("2025-03-14T09:26:53Z\0", 21);
    }

    void wrongForms()
    {
        QFETCH(QByteArray, text);
        QVERIFY(!json::dateFromText(text.toStdString()));
    }

    void partsOfASecondAreCutOff()
    {
        QCOMPARE(written(at("2025-03-14T09:26:53.999Z")), std::string("2025-03-14T09:26:53Z"));
        QCOMPARE(written(at("1969-12-31T23:59:58.001Z")), std::string("1969-12-31T23:59:58Z"));
    }

    void otherYearsHaveNoText()
    {
        const Instant end = at("9999-12-31T23:59:59.999Z");
        QCOMPARE(written(end), std::string("9999-12-31T23:59:59Z"));
        QVERIFY(!json::dateText(end + std::chrono::milliseconds(1)));
        const Instant begin = at("0001-01-01T00:00:00Z");
        QVERIFY(json::dateText(begin));
        QVERIFY(!json::dateText(begin - std::chrono::milliseconds(1)));
        QVERIFY(!json::dateText(Instant::max()));
        QVERIFY(!json::dateText(Instant::min()));
    }

    void identifiers()
    {
        const QUuid id = QUuid::fromString(u"E621E1F8-C36C-495A-93FC-0C247A3E6E5F"_s);
        QCOMPARE(json::uuidFromText("E621E1F8-C36C-495A-93FC-0C247A3E6E5F"), std::optional(id));
        QCOMPARE(json::uuidFromText("e621e1f8-c36c-495a-93fc-0c247a3e6e5f"), std::optional(id));
        QCOMPARE(json::uuidFromText("E621e1F8-C36C-495A-93fc-0C247A3E6E5F"), std::optional(id));
        const auto upper = json::uuidText(id);
        QCOMPARE(std::string(upper.begin(), upper.end()), std::string("E621E1F8-C36C-495A-93FC-0C247A3E6E5F"));
        // Nobody's id, but an id.
        QCOMPARE(json::uuidFromText("00000000-0000-0000-0000-000000000000"), std::optional(QUuid()));
        for (const char* text :
             {"", "E621E1F8", "{E621E1F8-C36C-495A-93FC-0C247A3E6E5F}", "E621E1F8C36C495A93FC0C247A3E6E5F",
              "E621E1F8-C36C-495A-93FC-0C247A3E6E5", "E621E1F8-C36C-495A-93FC-0C247A3E6E5F0",
              "E621E1F8-C36C-495A-93FC-0C247A3E6E5G", "E621E1F-8C36C-495A-93FC-0C247A3E6E5F",
              "E621E1F8 C36C 495A 93FC 0C247A3E6E5F", "urn:uuid:E621E1F8-C36C-495A-93FC-0C247A3E6E5F"})
            QVERIFY2(!json::uuidFromText(text), text);
    }
};

ABISSORA_TEST(tst_ScalarText);
#include "tst_ScalarText.moc"
