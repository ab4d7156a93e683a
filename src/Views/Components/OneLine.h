// SPDX-License-Identifier: MIT
#pragma once

class QLineEdit;
class QString;

namespace abissora {

/// Line breaks that are pasted or dropped become blanks: a field of one line would show a mark for them and store them.
void keepOneLine(QLineEdit& field);

/// Shows in such a field what is stored, breaks included: what nobody changes stays as it is.
void setStoredText(QLineEdit& field, const QString& text);

} // namespace abissora
