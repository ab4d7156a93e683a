// SPDX-License-Identifier: MIT
#pragma once

#include "IoChecks.h"
#include "Literals.h"
#include "PreferencesStore.h"
#include "TestRunner.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace abissora::test {

class RecordingKeeper final : public StateKeeper
{
public:
    struct Told
    {
        QString key;
        Occasion occasion;
        friend bool operator==(const Told&, const Told&) = default;
    };

    IoResult<void> beforeWriting(const QString& key, Occasion occasion) override
    {
        told.append({key, occasion});
        if (forbids)
            return tl::unexpected(IoError::fromErrno(EROFS));
        return {};
    }

    IoResult<void> keepUnreadable(const QString& key) override { return beforeWriting(key, Occasion::unreadable); }

    QList<Told> told;
    bool forbids = false;
};

/// A store over an empty folder for each test function.
class PreferencesTest : public TestCase
{
    Q_OBJECT

protected Q_SLOTS:
    /// A class with an init() of its own calls this one first.
    void init()
    {
        TestCase::init();
        m_folder.emplace();
        m_keeper = {};
        QVERIFY(m_folder->isValid());
        m_store.emplace(preferences(), m_keeper);
    }

protected:
    const QString key = u"savedEquipment"_s;

    [[nodiscard]] QString preferences() const { return m_folder->filePath(u"preferences"_s); }

    static QByteArray content(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }

    static void write(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }

    static QStringList namesIn(const QString& folder)
    {
        return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    std::optional<QTemporaryDir> m_folder;
    RecordingKeeper m_keeper;
    std::optional<PreferencesStore> m_store;
};

} // namespace abissora::test
