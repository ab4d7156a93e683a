// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "Product.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

class tst_Product : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theWebsiteIsOne()
    {
        const Product product = Product::builtIn();
        QVERIFY(!product.author.isEmpty());
        QVERIFY(product.websiteURL.isValid());
        QCOMPARE(product.websiteURL.scheme(), u"https"_s);
        QVERIFY(!product.websiteURL.host().isEmpty());
        QVERIFY(product.websiteURL.path().endsWith(u'/'));
        QVERIFY(product.manifestURL.isEmpty());
    }
};

ABISSORA_TEST(tst_Product);
#include "tst_Product.moc"
