// SPDX-License-Identifier: MIT
#include "Order.h"

#include <vector>

namespace {

int quotient(int divisor)
{
    if (divisor != 0)
        return 0;
    return 7 / divisor; // planted: clang-analyzer-core.DivideZero
}

bool isEmpty(const std::vector<Order>& orders)
{
    return orders.size() == 0; // planted: readability-container-size-empty
}

std::vector<std::string> buyers(const std::vector<Order>& orders)
{
    std::vector<std::string> all;
    for (const Order order : orders)                       // planted: performance-for-range-copy
        all.push_back(std::string(order.buyer.data(), 3)); // planted: modernize-use-emplace
    return all;
}

} // namespace

int second(int value, const std::vector<Order>& orders)
{
    const bool always = value == value; // planted: misc-redundant-expression
    return quotient(value) + (always && isEmpty(orders) ? 1 : static_cast<int>(buyers(orders).size()));
}
