// SPDX-License-Identifier: MIT
// The program as it is, except that ABISSORA_JOURNEY_MANIFEST names where the update check looks.
#include "Program.h"

#include <QtGlobal>

int main(int argc, char** argv)
{
    abissora::Product product = abissora::Product::builtIn();
    if (const QString address = qEnvironmentVariable("ABISSORA_JOURNEY_MANIFEST"); !address.isEmpty())
        product.manifestURL = QUrl(address);
    return abissora::runProgram(argc, argv, product);
}
