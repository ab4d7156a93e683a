// SPDX-License-Identifier: MIT
#include "FilePanel.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

class PanelWithoutGrants final : public FilePanel
{
public:
    std::optional<QString> pickFile(const FilePanelRequest& /*request*/) override { return std::nullopt; }
};

} // namespace

class tst_FilePanel : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void grantsNoAccessByDefault()
    {
        PanelWithoutGrants panel;
        QVERIFY(!panel.beginAccess(u"/a.pdf"_s));
    }
};

ABISSORA_TEST(tst_FilePanel);
#include "tst_FilePanel.moc"
