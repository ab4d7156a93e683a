// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUuid>

namespace abissora {

class IdGenerator
{
public:
    virtual ~IdGenerator() = default;
    [[nodiscard]] virtual QUuid next() = 0;
};

/// Version 4 UUIDs.
class RandomIdGenerator final : public IdGenerator
{
public:
    [[nodiscard]] QUuid next() override { return QUuid::createUuid(); }
};

/// The canonical stored form: 36 characters, hyphenated, upper case.
[[nodiscard]] inline QString uuidText(const QUuid& id)
{
    return id.toString(QUuid::WithoutBraces).toUpper();
}

} // namespace abissora
