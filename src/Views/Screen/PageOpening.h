// SPDX-License-Identifier: MIT
#pragma once

class QUrl;
class QWidget;

namespace abissora {

class Opener;

/// Opens a page in the browser, and tells the person over the window of `place` when nothing on this system does, which
/// is false.
bool openPage(const QUrl& address, Opener& opener, QWidget& place);

} // namespace abissora
