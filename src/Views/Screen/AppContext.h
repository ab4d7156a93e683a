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
#include "UpdateCheckerViewModel.h"

namespace abissora {

/// What every screen works with: the state objects and the few services that views use themselves. All of it outlives
/// every window.
struct AppContext
{
    EquipmentViewModel& equipment;
    EquipmentTypeViewModel& types;
    SettingsViewModel& settings;
    UpdateCheckerViewModel& updates;
    Console& console;
    const Clock& clock;
    IdGenerator& ids;
    MaintenanceDocumentStore& documents;
    Opener& opener;
    const AppInfo& info;
    const Product& product;
    Calendar calendar;
    DateFormat dates;
};

} // namespace abissora
