// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <tl/expected.hpp>

namespace abissora {

/// A text in one of the encodings that spreadsheets write.
struct DecodedText
{
    QString text;     ///< without a byte order mark
    QString encoding; ///< "UTF-8", "UTF-16" or "Windows-1252"
};

/// UTF-8 and UTF-16 by their byte order mark or by what the bytes look like, else Windows-1252, which any bytes are.
/// The error says to a person what the file is instead: empty, a PDF document, a compressed workbook.
[[nodiscard]] tl::expected<DecodedText, QString> decodeText(const QByteArray& bytes);

} // namespace abissora
