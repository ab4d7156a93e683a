// SPDX-License-Identifier: MIT
#include "Storable.h"

#include "RecordFields.h"

#include <algorithm>
#include <cmath>

namespace abissora {

namespace {

struct MakeStorable
{
    void operator()(Instant& value) const { value = std::clamp(value, firstInstant, lastInstant); }

    void operator()(double& value) const
    {
        if (!std::isfinite(value))
            value = 0;
    }

    template <typename Value>
    void operator()(std::optional<Value>& value) const
    {
        if (value)
            (*this)(*value);
    }

    template <json::Described Record>
    void operator()(QList<Record>& records) const
    {
        std::ranges::for_each(records, *this);
    }

    template <json::Described Record>
    void operator()(Record& record) const
    {
        std::apply([&](const auto&... field) { ((*this)(record.*(field.member)), ...); }, json::Fields<Record>::all);
    }

    /// Anything else has a stored form, whatever its value.
    template <typename Value>
    void operator()(Value& /*value*/) const
    {}
};

} // namespace

Equipment storable(Equipment item)
{
    MakeStorable()(item);
    return item;
}

Maintenance storable(Maintenance record)
{
    MakeStorable()(record);
    return record;
}

} // namespace abissora
