// SPDX-License-Identifier: MIT
#include "NetworkUpdates.h"
#include "Program.h"

int main(int argc, char** argv)
{
    return abissora::runProgram(argc, argv, abissora::Product::builtIn(), abissora::networkUpdates);
}
