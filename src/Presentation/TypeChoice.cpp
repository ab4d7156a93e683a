// SPDX-License-Identifier: MIT
#include "TypeChoice.h"

#include "Equipment.h"
#include "Literals.h"
#include "TypeAppearance.h"

#include <numeric>

namespace abissora {

namespace {

constexpr unsigned versionMark = 0x40;
constexpr unsigned variantMark = 0x80;

char byteOf(quint64 number, int index, unsigned mark = 0)
{
    return static_cast<char>(((number >> (8 * index)) & 0xFF) | mark);
}

} // namespace

QUuid stableUUID(const QString& from)
{
    const QByteArray text = from.toUtf8();
    const auto count = static_cast<quint64>(text.size());
    const quint64 sum = std::accumulate(text.begin(), text.end(), quint64{0}, [](quint64 total, char byte) {
        return total + static_cast<unsigned char>(byte);
    });
    const char bytes[] = {
        byteOf(sum, 0),
        byteOf(sum, 1),
        byteOf(sum, 2),
        byteOf(sum, 3),
        byteOf(count, 0),
        byteOf(count, 1),
        byteOf(count, 2, versionMark),
        byteOf(count, 3, variantMark),
        '\x80',
        '\x8C',
        byteOf(sum, 4),
        byteOf(sum, 5),
        byteOf(sum, 6),
        byteOf(sum, 7),
        byteOf(count, 4),
        byteOf(count, 5),
    };
    return QUuid::fromRfc4122(QByteArrayView(bytes, sizeof bytes));
}

QString defaultTypeName(const QList<EquipmentTypeModel>& offered)
{
    QString regulator = rawValue(EquipmentType::regulator);
    if (offers(offered, regulator))
        return regulator;
    return offered.isEmpty() ? QString() : offered.first().name;
}

bool offers(const QList<EquipmentTypeModel>& offered, const QString& typeName)
{
    return std::ranges::find(offered, typeName, &EquipmentTypeModel::name) != offered.end();
}

QList<EquipmentTypeModel> availableTypes(const QList<EquipmentTypeModel>& offered, const QString& selectedTypeName)
{
    if (selectedTypeName.isEmpty() || offers(offered, selectedTypeName))
        return offered;
    return offered + QList<EquipmentTypeModel>{{
                         .id = stableUUID(selectedTypeName),
                         .name = selectedTypeName,
                         .icon = unknownTypeIcon,
                         .color = u"gray"_s,
                         .serviceIntervalDays = 365,
                         .isActive = true,
                     }};
}

} // namespace abissora
