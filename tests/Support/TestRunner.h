// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSignalSpy>
#include <QTest>
#include <memory>

namespace abissora::test {

/// Base of every test class: any warning that the test did not announce with QTest::ignoreMessage fails it.
class TestCase : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    /// A class with an init() of its own calls this one first.
    void init();
};

using TestFactory = std::unique_ptr<QObject> (*)();

/// Used by ABISSORA_TEST.
struct TestRegistration
{
    TestRegistration(const char* name, TestFactory factory);
};

} // namespace abissora::test

/// Makes a test class known to the runner under its own name; once, in its source file.
#define ABISSORA_TEST(Class)                                                                                           \
    static const abissora::test::TestRegistration registration_##Class(                                                \
        #Class, +[]() -> std::unique_ptr<QObject> { return std::make_unique<Class>(); })
