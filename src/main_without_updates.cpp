// SPDX-License-Identifier: MIT
#include "Program.h"

int main(int argc, char** argv)
{
    return abissora::runProgram(argc, argv, abissora::Product::builtIn(), [] { return std::nullopt; });
}
