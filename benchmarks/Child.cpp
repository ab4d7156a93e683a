// SPDX-License-Identifier: MIT
#include "Child.h"

#include <QFile>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace abissora::benchmark {

namespace {

[[noreturn]] void giveUp(const QByteArray& program, const char* what)
{
    std::fprintf(stderr, "%s %s.\n", program.constData(), what);
    std::exit(EXIT_FAILURE);
}

double middle(std::vector<double> values)
{
    const auto at = values.begin() + std::ssize(values) / 2;
    std::nth_element(values.begin(), at, values.end());
    return *at;
}

} // namespace

Run run(const QString& program, const QStringList& arguments)
{
    QList<QByteArray> words{QFile::encodeName(program)};
    for (const QString& argument : arguments)
        words.append(QFile::encodeName(argument));
    std::vector<char*> argv;
    for (QByteArray& word : words)
        argv.push_back(word.data());
    argv.push_back(nullptr);

    posix_spawn_file_actions_t silence;
    posix_spawn_file_actions_init(&silence);
    for (const int stream : {STDOUT_FILENO, STDERR_FILENO})
        posix_spawn_file_actions_addopen(&silence, stream, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    int status = 0;
    rusage usage{};
    const auto begin = std::chrono::steady_clock::now();
    const int error = ::posix_spawn(&child, argv.front(), &silence, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&silence);
    if (error != 0)
        giveUp(words.first(), "cannot be started");
    if (::wait4(child, &status, 0, &usage) != child || !WIFEXITED(status) || WEXITSTATUS(status) != EXIT_SUCCESS)
        giveUp(words.first(), "failed");
    return {std::chrono::steady_clock::now() - begin, static_cast<double>(usage.ru_maxrss) / 1024};
}

Run medianRun(int count, const QString& program, const QStringList& arguments)
{
    std::vector<double> times;
    std::vector<double> memories;
    static_cast<void>(run(program, arguments));
    for (int i = 0; i < count; ++i) {
        const Run one = run(program, arguments);
        times.push_back(one.time.count());
        memories.push_back(one.memory);
    }
    return {Duration(middle(times)), middle(memories)};
}

} // namespace abissora::benchmark
