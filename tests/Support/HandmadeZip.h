// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>

namespace abissora::test {

/// Zip files byte by byte, of entries that are stored as they are, also such as no honest program writes.
struct HandmadeZip
{
    struct Entry
    {
        QByteArray name;
        QByteArray bytes;
        quint32 mode = 0100600; ///< as of a file system
        quint16 flags = 0x0800; ///< the name is UTF-8; 1 for encrypted
        bool inDirectory = true;
    };

    QList<Entry> entries;

    [[nodiscard]] QByteArray bytes() const
    {
        QByteArray file;
        QByteArray directory;
        quint16 count = 0;
        for (const Entry& entry : entries) {
            const auto offset = static_cast<quint32>(file.size());
            const QByteArray common = number<quint16>(entry.flags) + number<quint16>(0) + number<quint16>(0) +
                                      number<quint16>(0x5000) + number<quint32>(sum(entry.bytes)) +
                                      number<quint32>(static_cast<quint32>(entry.bytes.size())) +
                                      number<quint32>(static_cast<quint32>(entry.bytes.size())) +
                                      number<quint16>(static_cast<quint16>(entry.name.size())) + number<quint16>(0);
            file += QByteArray("PK\3\4") + number<quint16>(20) + common + entry.name + entry.bytes;
            if (!entry.inDirectory)
                continue;
            constexpr quint16 madeOnUnix = 3 << 8 | 20;
            directory += QByteArray("PK\1\2") + number<quint16>(madeOnUnix) + number<quint16>(20) + common +
                         number<quint16>(0) + number<quint16>(0) + number<quint16>(0) +
                         number<quint32>(entry.mode << 16U) + number<quint32>(offset) + entry.name;
            ++count;
        }
        const auto start = static_cast<quint32>(file.size());
        return file + directory + QByteArray("PK\5\6") + number<quint16>(0) + number<quint16>(0) +
               number<quint16>(count) + number<quint16>(count) +
               number<quint32>(static_cast<quint32>(directory.size())) + number<quint32>(start) + number<quint16>(0);
    }

private:
    template <typename T>
    [[nodiscard]] static QByteArray number(T value)
    {
        QByteArray bytes;
        for (std::size_t i = 0; i < sizeof(T); ++i)
            bytes.append(static_cast<char>(value >> (8 * i) & 0xff));
        return bytes;
    }

    /// CRC-32 of ISO 3309.
    [[nodiscard]] static quint32 sum(const QByteArray& bytes)
    {
        constexpr quint32 polynomial = 0xedb88320;
        quint32 remainder = 0xffffffff;
        for (const char byte : bytes) {
            remainder ^= static_cast<quint8>(byte);
            for (int bit = 0; bit < 8; ++bit)
                remainder = (remainder & 1U) != 0 ? remainder >> 1U ^ polynomial : remainder >> 1U;
        }
        return ~remainder;
    }
};

} // namespace abissora::test
