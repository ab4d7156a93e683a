// SPDX-License-Identifier: MIT
// The program as it is, except that ABISSORA_JOURNEY_MANIFEST names where the update check looks and waits there for as
// long as a journey does, and that with ABISSORA_JOURNEY_NO_NAMES nobody ever answers what address a name has.
#include "NetworkUpdates.h"
#include "Program.h"

#include <QtGlobal>
#include <cstdio>
#include <dlfcn.h>
#include <netdb.h>
#include <unistd.h>

/// In the place of the system's own, for the toolkit as well.
extern "C" int getaddrinfo(const char* name, const char* service, const addrinfo* hints, addrinfo** found)
{
    if (qEnvironmentVariableIsSet("ABISSORA_JOURNEY_NO_NAMES")) {
        std::puts("looking a name up");
        std::fflush(stdout);
        while (true)
            pause();
    }
    const auto system = reinterpret_cast<decltype(&getaddrinfo)>(dlsym(RTLD_NEXT, "getaddrinfo"));
    return system(name, service, hints, found);
}

int main(int argc, char** argv)
{
    return abissora::runProgram(argc, argv, abissora::Product::builtIn(), [] {
        // The journey's server keeps the answer back until it has typed, on a busy machine for more than a minute.
        abissora::HttpLimits limits;
        limits.time = std::chrono::hours(1);
        abissora::UpdateSource updates = abissora::networkUpdatesWithin(limits);
        if (const QString address = qEnvironmentVariable("ABISSORA_JOURNEY_MANIFEST"); !address.isEmpty())
            updates.manifestURL = QUrl(address);
        return updates;
    });
}
