// SPDX-License-Identifier: MIT
#include "PdfDocument.h"

#include "Literals.h"
#include "RegularFile.h"

namespace abissora {

namespace {

// ISO 32000-1, 7.5.2: the header stands in the first line. Readers find it anywhere within the first 1024 bytes (PDF
// Reference 1.7, appendix H, note 13), as some producers put something before it.
constexpr QByteArrayView header("%PDF-");
constexpr qsizetype searched = 1024;

} // namespace

IoResult<void> checkPdf(const QString& path)
{
    const auto beginning = RegularFile::beginning(path, searched);
    if (!beginning)
        return tl::unexpected(beginning.error());
    if (!beginning->contains(header))
        return tl::unexpected(IoError{u"Not a PDF document"_s});
    return {};
}

bool isPdf(const QString& path)
{
    return checkPdf(path).has_value();
}

} // namespace abissora
