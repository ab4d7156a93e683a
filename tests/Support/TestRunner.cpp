// SPDX-License-Identifier: MIT
#include "TestRunner.h"

#include <QRegularExpression>
#include <QTest>
#include <cstdio>
#include <map>
#include <string>

#ifdef ABISSORA_TEST_WITH_WIDGETS
#include <QApplication>
using Application = QApplication;
#else
#include <QCoreApplication>
using Application = QCoreApplication;
#endif

using namespace Qt::StringLiterals;

namespace abissora::test {

namespace {

std::map<std::string, TestFactory>& registry()
{
    static std::map<std::string, TestFactory> tests;
    return tests;
}

} // namespace

void TestCase::init()
{
    // The offscreen platform says of itself what it cannot do; that is no fault of the program.
    QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support )"_s));
}

TestRegistration::TestRegistration(const char* name, TestFactory factory)
{
    registry().emplace(name, factory);
}

} // namespace abissora::test

/// tests_layer CLASS [QtTest arguments]
int main(int argc, char** argv)
{
    const Application application(argc, argv);
    QCoreApplication::setApplicationName(u"abissora"_s);
    const auto& tests = abissora::test::registry();
    const auto found = argc > 1 ? tests.find(argv[1]) : tests.end();
    if (found == tests.end()) {
        std::fputs("usage: CLASS [QtTest arguments]; classes:\n", stderr);
        for (const auto& [name, factory] : tests)
            std::fprintf(stderr, "  %s\n", name.c_str());
        return 2;
    }
    const auto instance = found->second();
    argv[1] = argv[0];
    return QTest::qExec(instance.get(), argc - 1, argv + 1);
}
