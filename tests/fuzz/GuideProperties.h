// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace abissora::test {

/// What is wrong with how a document of the guide is cut into sections and blocks; empty when nothing is. Sections are
/// numbered without gaps and have a text, and nothing of a body's words is lost in its blocks.
[[nodiscard]] QString faultWithGuide(const QByteArray& document);

} // namespace abissora::test
