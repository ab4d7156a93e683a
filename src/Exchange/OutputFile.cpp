// SPDX-License-Identifier: MIT
#include "OutputFile.h"

#include "Literals.h"

#include <QFileInfo>
#include <QSaveFile>
#include <cerrno>

namespace abissora::OutputFile {

namespace {

using Fill = std::function<IoResult<void>(QIODevice&)>;

IoResult<void> failed(const QFileDevice& file)
{
    return tl::unexpected(IoError{file.errorString()});
}

IoResult<void> fillDirectly(const QString& path, const Fill& fill)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return failed(file);
    return fill(file).and_then([&file] { return file.flush() ? IoResult<void>() : failed(file); });
}

IoResult<void> replace(const QString& path, const Fill& fill)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return failed(file);
    if (auto filled = fill(file); !filled) {
        file.cancelWriting();
        return filled;
    }
    return file.commit() ? IoResult<void>() : failed(file);
}

} // namespace

QString failure(const QString& path, const IoError& error)
{
    return u"Non è stato possibile scrivere «%1»: %2"_s.arg(path, error.reason);
}

IoResult<void> write(const QString& path, const Fill& fill)
{
    const QFileInfo info(path);
    if (info.isDir())
        return tl::unexpected(IoError::fromErrno(EISDIR));
    // A pipe or a device keeps its place.
    return info.exists() && !info.isFile() ? fillDirectly(path, fill) : replace(path, fill);
}

IoResult<void> write(const QString& path, const QByteArray& bytes)
{
    return write(path, [&bytes](QIODevice& file) -> IoResult<void> {
        if (file.write(bytes) != bytes.size())
            return tl::unexpected(IoError{file.errorString()});
        return {};
    });
}

} // namespace abissora::OutputFile
