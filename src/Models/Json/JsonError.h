// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace abissora {

/// Where in a document and why records could not be written or read.
struct JsonError
{
    QString path; ///< "[2].maintenanceHistory[0].cost"; empty for the document as a whole
    QString message;

    [[nodiscard]] QString description() const;
    friend bool operator==(const JsonError&, const JsonError&) = default;
};

} // namespace abissora
