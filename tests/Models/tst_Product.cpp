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
    void theAddressesAreThoseOfAWebsite()
    {
        const Product product = Product::builtIn();
        QVERIFY(!product.author.isEmpty());
        for (const QUrl& address : {product.websiteURL, product.manifestURL}) {
            QVERIFY(address.isValid());
            QCOMPARE(address.scheme(), u"https"_s);
            QVERIFY(!address.host().isEmpty());
        }
        QVERIFY(product.websiteURL.path().endsWith(u'/'));
    }
};

ABISSORA_TEST(tst_Product);
#include "tst_Product.moc"
