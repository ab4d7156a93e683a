// SPDX-License-Identifier: MIT
#pragma once

#include <QUrl>

namespace abissora {

/// Opens files and addresses in the system's default application.
class Opener
{
public:
    virtual ~Opener() = default;

    /// False when the system has nothing that opens it.
    virtual bool open(const QUrl& url) = 0;
};

} // namespace abissora
