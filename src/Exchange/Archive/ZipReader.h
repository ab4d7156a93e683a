// SPDX-License-Identifier: MIT
#pragma once

#include "ArchiveLibrary.h"
#include "ZipLocale.h"

#include <QByteArray>
#include <optional>

namespace abissora {

/// Reads one zip file from its first entry to its last. Nothing that the file says of an entry is believed but its name
/// and its kind.
class ZipReader
{
public:
    struct Entry
    {
        QByteArray name;
        bool isPlainFile = false; ///< neither folder nor link nor device
        bool isEncrypted = false;
    };
    enum class Failure { Damaged };
    template <typename T>
    using Result = tl::expected<T, Failure>;

    explicit ZipReader(const ArchiveLibrary& library);
    ~ZipReader();
    Q_DISABLE_COPY_MOVE(ZipReader)

    [[nodiscard]] bool openFile(const QString& path);
    /// `bytes` must outlive it.
    [[nodiscard]] bool openBytes(const QByteArray& bytes);

    /// Nothing at the end.
    [[nodiscard]] Result<std::optional<Entry>> next();
    /// The next bytes of the entry, at most as many as `block` holds; 0 at its end.
    [[nodiscard]] Result<qsizetype> read(QByteArray& block);

private:
    ZipLocale m_locale;
    ArchiveLibrary m_library;
    archive* m_reader;
};

} // namespace abissora
