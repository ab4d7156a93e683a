// SPDX-License-Identifier: MIT
#include "Order.h"

#include <utility>

namespace {

int lengthAfterMove(std::string text)
{
    const std::string taken = std::move(text);
    return static_cast<int>(taken.size() + text.size()); // planted: bugprone-use-after-move
}

int piecesOf(const Order* order)
{
    const int pieces = order == nullptr ? 1 : 2;
    return pieces + order->pieces; // planted: clang-analyzer-core.NullDereference
}

int same(int pieces)
{
    if (pieces > 3) // planted: bugprone-branch-clone
        return 1;
    else
        return 1;
}

} // namespace

int first(int unused) // planted: misc-unused-parameters
{
    const Order order;
    return lengthAfterMove(order.buyer) + piecesOf(order.buyer.empty() ? nullptr : &order) + same(order.pieces);
}
