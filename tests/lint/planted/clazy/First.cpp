// SPDX-License-Identifier: MIT
#include <QMap>
#include <QString>

namespace {

QString nobody(QLatin1Char(65)); // planted: non-pod-global-static

} // namespace

qsizetype first(const QMap<int, QString>& names)
{
    qsizetype count = nobody.size();
    for (const int key : names.keys()) // planted: container-anti-pattern
        count += key;
    return count;
}
