// SPDX-License-Identifier: MIT
#pragma once

#include "Answer.h"
#include "Clock.h"
#include "Console.h"
#include "FilePanel.h"
#include "IdGenerator.h"
#include "Literals.h"
#include "LongWork.h"
#include "Opener.h"
#include "PackageInformation.h"
#include "ProgressPanel.h"
#include "SymbolLibrary.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QStringList>
#include <QVariant>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <utility>

// Deterministic stand-ins for what the platform gives. They record what happened; nothing in them asserts.
namespace abissora::test {

/// Stands still until told otherwise. Starts at 2026-06-15T10:00:00Z.
class FixedClock final : public Clock
{
public:
    FixedClock() = default;
    explicit FixedClock(Instant now)
        : m_now(now)
    {}

    [[nodiscard]] Instant now() const override { return m_now; }
    void set(Instant now) { m_now = now; }
    void advance(std::chrono::milliseconds by) { m_now += by; }

private:
    Instant m_now = std::chrono::sys_days{std::chrono::year{2026} / 6 / 15} + std::chrono::hours{10};
};

/// 00000000-0000-4000-8000-000000000001, ...002 and so on; the counter is decimal.
class SequentialIds final : public IdGenerator
{
public:
    [[nodiscard]] QUuid next() override { return at(++m_count); }
    [[nodiscard]] static QUuid at(int n)
    {
        return QUuid::fromString(u"00000000-0000-4000-8000-%1"_s.arg(n, 12, 10, '0'_L1));
    }
    [[nodiscard]] int count() const { return m_count; }

private:
    int m_count = 0;
};

class RecordingConsole final : public Console
{
public:
    void print(const QString& text) override { m_calls.append(text); }

    /// One entry per print().
    [[nodiscard]] const QStringList& calls() const { return m_calls; }
    /// Everything printed, joined by line feeds, without the last one.
    [[nodiscard]] QString text() const { return m_calls.join(u'\n'); }
    [[nodiscard]] QStringList lines() const { return m_calls.isEmpty() ? QStringList() : text().split(u'\n'); }
    void clear() { m_calls.clear(); }

private:
    QStringList m_calls;
};

/// Answers from a queue; an empty queue means that the person dismissed the panel.
class ScriptedFilePanel final : public FilePanel
{
public:
    void answer(const std::optional<QString>& path) { m_answers.append(path); }
    void grantAccess(bool granted) { m_grants = granted; }
    /// What happens while the panel is open: its own event loop runs.
    void meanwhile(std::function<void()> action) { m_meanwhile = std::move(action); }

    [[nodiscard]] std::optional<QString> pickFile(const FilePanelRequest& request) override
    {
        m_requests.append(request);
        if (m_meanwhile)
            m_meanwhile();
        return next();
    }
    /// An answer is a path; the format follows its name.
    [[nodiscard]] std::optional<SaveTarget> pickTarget(const SavePanelRequest& request) override
    {
        m_saveRequests.append(request);
        const std::optional<QString> path = next();
        return path ? std::optional(saveTarget(*path, request.formats, m_format)) : std::nullopt;
    }
    /// The one selected in the panel for a file that is to be written.
    void selectFormat(qsizetype format) { m_format = format; }
    [[nodiscard]] bool beginAccess(const QString& path) override
    {
        m_begun.append(path);
        return m_grants;
    }
    void endAccess(const QString& path) override { m_ended.append(path); }

    [[nodiscard]] const QList<FilePanelRequest>& requests() const { return m_requests; }
    [[nodiscard]] const QList<SavePanelRequest>& saveRequests() const { return m_saveRequests; }
    /// The paths for which access was asked and given back, in order.
    [[nodiscard]] const QStringList& begun() const { return m_begun; }
    [[nodiscard]] const QStringList& ended() const { return m_ended; }
    [[nodiscard]] qsizetype unusedAnswers() const { return m_answers.size(); }

private:
    std::optional<QString> next() { return m_answers.isEmpty() ? std::nullopt : m_answers.takeFirst(); }

    QList<std::optional<QString>> m_answers;
    QList<FilePanelRequest> m_requests;
    QList<SavePanelRequest> m_saveRequests;
    qsizetype m_format = 0;
    QStringList m_begun;
    QStringList m_ended;
    std::function<void()> m_meanwhile;
    bool m_grants = false;
};

/// Shows nobody anything.
class FakeProgressPanel final : public ProgressPanel
{
public:
    [[nodiscard]] std::unique_ptr<Showing> show(const QString& title, std::shared_ptr<WorkProgress> progress) override
    {
        m_titles.append(title);
        m_shown->append(progress);
        return std::make_unique<End>(m_shown, progress);
    }

    /// Of everything that was ever shown.
    [[nodiscard]] const QStringList& titles() const { return m_titles; }
    /// What is on show, the oldest first.
    [[nodiscard]] const QList<std::shared_ptr<WorkProgress>>& shown() const { return *m_shown; }

private:
    using Shown = QList<std::shared_ptr<WorkProgress>>;

    class End final : public Showing
    {
    public:
        End(std::shared_ptr<Shown> shown, std::shared_ptr<WorkProgress> progress)
            : m_shown(std::move(shown))
            , m_progress(std::move(progress))
        {}
        ~End() override { m_shown->removeOne(m_progress); }
        Q_DISABLE_COPY_MOVE(End)

    private:
        std::shared_ptr<Shown> m_shown;
        std::shared_ptr<WorkProgress> m_progress;
    };

    QStringList m_titles;
    std::shared_ptr<Shown> m_shown = std::make_shared<Shown>();
};

/// Does work on the spot, or once it is told to, or leaves it to another.
class ScriptedWork final : public LongWork
{
public:
    ScriptedWork() = default;
    Q_DISABLE_COPY_MOVE(ScriptedWork)
    ~ScriptedWork() override
    {
        while (held() > 0) {
            progress().cancel();
            finish();
        }
    }

    [[nodiscard]] QCoro::Task<IoResult<void>> run(QString title, Function work,
                                                  std::shared_ptr<WorkProgress> progress) override
    {
        m_titles.append(title);
        if (m_other != nullptr)
            co_return co_await m_other->run(title, work, progress);
        if (m_isSlow) {
            const auto pending = std::make_shared<Answer<bool>>();
            m_held.append({progress, pending});
            co_await pending->given();
        }
        co_return work(*progress);
    }
    /// From now on everything waits for finish().
    void beSlow() { m_isSlow = true; }
    void finish(qsizetype index = 0) { m_held.takeAt(index).second->give(true); }
    /// Which must outlive whatever is under way.
    void leaveTo(LongWork* other) { m_other = other; }

    [[nodiscard]] qsizetype held() const { return m_held.size(); }
    [[nodiscard]] WorkProgress& progress(qsizetype index = 0) const { return *m_held.at(index).first; }
    [[nodiscard]] const QStringList& titles() const { return m_titles; }

private:
    QStringList m_titles;
    QList<std::pair<std::shared_ptr<WorkProgress>, std::shared_ptr<Answer<bool>>>> m_held;
    LongWork* m_other = nullptr;
    bool m_isSlow = false;
};

class RecordingOpener final : public Opener
{
public:
    RecordingOpener() = default;
    Q_DISABLE_COPY_MOVE(RecordingOpener)
    ~RecordingOpener() override
    {
        while (!m_open.isEmpty())
            answer(false);
    }

    [[nodiscard]] QCoro::Task<bool> open(QUrl url) override
    {
        m_opened.append(url);
        const auto pending = std::make_shared<Answer<bool>>();
        if (m_isSlow)
            m_open.append(pending);
        else
            pending->give(m_succeeds);
        co_return co_await pending->given();
    }
    void succeed(bool succeeds) { m_succeeds = succeeds; }
    /// From now on everything waits for answer(), in the order in which it came.
    void beSlow() { m_isSlow = true; }
    void answer(bool opened) { m_open.takeFirst()->give(opened); }

    [[nodiscard]] const QList<QUrl>& opened() const { return m_opened; }

private:
    QList<QUrl> m_opened;
    QList<std::shared_ptr<Answer<bool>>> m_open;
    bool m_succeeds = true;
    bool m_isSlow = false;
};

class FakeSymbolLibrary final : public SymbolLibrary
{
public:
    FakeSymbolLibrary() = default;
    FakeSymbolLibrary(std::initializer_list<QString> names)
        : m_names(names)
    {}
    explicit FakeSymbolLibrary(QSet<QString> names)
        : m_names(std::move(names))
    {}

    [[nodiscard]] bool contains(const QString& name) const override { return m_names.contains(name); }
    void add(const QString& name) { m_names.insert(name); }
    void remove(const QString& name) { m_names.remove(name); }

private:
    QSet<QString> m_names;
};

/// Knows nothing until told.
class FakePackageInformation final : public PackageInformation
{
public:
    void set(const QString& key, const QVariant& value) { m_values.insert(key, value); }
    void setExecutablePath(std::optional<QString> path) { m_executablePath = std::move(path); }

    [[nodiscard]] QVariant value(const QString& key) const override { return m_values.value(key); }
    [[nodiscard]] std::optional<QString> executablePath() const override { return m_executablePath; }

private:
    QHash<QString, QVariant> m_values;
    std::optional<QString> m_executablePath;
};

/// A release with these two texts.
inline FakePackageInformation release(const QString& version, const QString& build)
{
    FakePackageInformation package;
    package.set(u"CFBundleShortVersionString"_s, version);
    package.set(u"CFBundleVersion"_s, build);
    return package;
}

} // namespace abissora::test
