// SPDX-License-Identifier: MIT
#include "Fakes.h"
#include "IdGenerator.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QSet>
#include <QTest>

using namespace abissora;

class tst_IdGenerator : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void idsAreRandomAndDistinct()
    {
        RandomIdGenerator ids;
        QSet<QUuid> seen;
        for (int i = 0; i < 1000; ++i) {
            const QUuid id = ids.next();
            QCOMPARE(id.version(), QUuid::Random);
            QCOMPARE(id.variant(), QUuid::DCE);
            seen.insert(id);
        }
        QCOMPARE(seen.size(), 1000);
    }

    void textIsUpperCaseAndHyphenated()
    {
        const QUuid id(u"{0a1b2c3d-4e5f-4a6b-8c7d-9e0f1a2b3c4d}"_s);
        QCOMPARE(uuidText(id), u"0A1B2C3D-4E5F-4A6B-8C7D-9E0F1A2B3C4D"_s);
        QCOMPARE(QUuid::fromString(uuidText(id)), id);
    }

    void sequentialIdsCount()
    {
        test::SequentialIds ids;
        QCOMPARE(uuidText(ids.next()), u"00000000-0000-4000-8000-000000000001"_s);
        QCOMPARE(uuidText(ids.next()), u"00000000-0000-4000-8000-000000000002"_s);
        QCOMPARE(uuidText(test::SequentialIds::at(12)), u"00000000-0000-4000-8000-000000000012"_s);
    }
};

ABISSORA_TEST(tst_IdGenerator);
#include "tst_IdGenerator.moc"
