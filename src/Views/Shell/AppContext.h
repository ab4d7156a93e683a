// SPDX-License-Identifier: MIT
#pragma once

#include "Calendar.h"
#include "Clock.h"
#include "Console.h"
#include "DateFormat.h"
#include "EquipmentTypeViewModel.h"
#include "EquipmentViewModel.h"
#include "IdGenerator.h"
#include "MaintenanceDocumentStore.h"
#include "Opener.h"
#include "SettingsViewModel.h"

namespace abissora {

/// What every screen works with: the state objects and the few services that views use themselves. All of it outlives
/// every window.
struct AppContext
{
    EquipmentViewModel& equipment;
    EquipmentTypeViewModel& types;
    SettingsViewModel& settings;
    Console& console;
    const Clock& clock;
    IdGenerator& ids;
    MaintenanceDocumentStore& documents;
    Opener& opener;
    Calendar calendar;
    DateFormat dates;
};

} // namespace abissora
