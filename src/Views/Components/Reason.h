// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QLabel;

namespace abissora {

/// Shows in the label why something did not come about, and lets screen readers say it; an empty text hides the label.
void showReason(QLabel& label, const QString& text);

} // namespace abissora
