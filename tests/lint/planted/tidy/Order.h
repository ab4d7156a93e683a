// SPDX-License-Identifier: MIT
#pragma once

#include <string>

struct Order
{
    Order() {} // planted: cppcoreguidelines-pro-type-member-init

    std::string buyer;
    int pieces;
};
