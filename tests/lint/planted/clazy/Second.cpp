// SPDX-License-Identifier: MIT
#include <QStringList>

namespace {

QString firstOf(const QStringList& names)
{
    QStringList copy = names;
    return copy.mid(1).first(); // planted: detaching-temporary
}

} // namespace

QString second(const QStringList& names)
{
    return firstOf(names);
}
