// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentViewModel.h"
#include "TemporaryRegister.h"

namespace abissora::test {

/// The register's state object over a temporary register that holds `stored`; what loading printed is forgotten.
struct Catalogue : TemporaryRegister
{
    explicit Catalogue(const QList<Equipment>& stored)
        : viewModel(storageManager(stored), documents, console, clock, calendar)
    {
        console.clear();
    }

    [[nodiscard]] QList<Equipment> storedEquipment() const
    {
        return decodeEquipment(content(registerFile)).value_or(QList<Equipment>());
    }

    EquipmentViewModel viewModel;
};

} // namespace abissora::test
