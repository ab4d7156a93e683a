// SPDX-License-Identifier: MIT
#include "FieldDifferences.h"

#include "CountText.h"
#include "Literals.h"
#include "TypeManagement.h"

#include <functional>

namespace abissora {

namespace {

/// Collects what differs.
class Differences
{
public:
    /// For values that are equal exactly when their texts are.
    void add(const QString& label, const QString& before, const QString& after)
    {
        if (before != after)
            m_all.append({label, shown(before), shown(after)});
    }
    template <typename Value>
    void add(const QString& label, const Value& before, const Value& after, const std::function<QString(Value)>& text)
    {
        if (before != after)
            m_all.append({label, shown(text(before)), shown(text(after))});
    }

    [[nodiscard]] QList<FieldDifference> all() const { return m_all; }

private:
    [[nodiscard]] static QString shown(const QString& text)
    {
        const QString line = text.simplified();
        return line.isEmpty() ? u"vuoto"_s : line;
    }

    QList<FieldDifference> m_all;
};

QString historyDifference(const QList<Maintenance>& before, const QList<Maintenance>& after)
{
    if (before == after)
        return {};
    QHash<QUuid, const Maintenance*> left;
    for (const Maintenance& record : before)
        left.insert(record.id, &record);
    qsizetype returning = 0;
    qsizetype changing = 0;
    for (const Maintenance& record : after) {
        if (const Maintenance* const counterpart = left.take(record.id))
            changing += *counterpart == record ? 0 : 1;
        else
            ++returning;
    }
    const qsizetype vanishing = left.size();
    const qsizetype all = returning + vanishing + changing;
    if (all == 0)
        return u"ordine delle manutenzioni"_s;
    const auto say = [all](const QString& one, const QString& many) -> QString {
        return (all == 1 ? one : many) + u' ' + recordsText(all);
    };
    if (returning == all)
        return say(u"torna"_s, u"tornano"_s);
    if (vanishing == all)
        return say(u"sparisce"_s, u"spariscono"_s);
    if (changing == all)
        return say(u"cambia"_s, u"cambiano"_s);
    return recordsText(all);
}

QString colorText(const QString& name)
{
    const auto known = availableColorNamed(name.toLower());
    return known ? rawValue(*known) : name;
}

QString yesOrNo(bool on)
{
    return on ? u"sì"_s : u"no"_s;
}

} // namespace

QList<FieldDifference> fieldDifferences(const Equipment& before, const Equipment& after, const DateFormat& dates)
{
    const std::function<QString(Instant)> date = [&dates](Instant day) { return dates.abbreviatedDate(day); };
    const std::function<QString(bool)> state = [](bool active) { return active ? u"Attivo"_s : u"Inattivo"_s; };
    Differences differences;
    differences.add(u"Nome"_s, before.name, after.name);
    if (before.typeName() != after.typeName())
        differences.add(u"Tipo"_s, before.displayTypeName(), after.displayTypeName());
    differences.add(u"Marca"_s, before.brand, after.brand);
    differences.add(u"Modello"_s, before.model, after.model);
    differences.add(u"Numero Seriale"_s, before.serialNumber, after.serialNumber);
    differences.add(u"Data Acquisto"_s, before.purchaseDate, after.purchaseDate, date);
    differences.add(u"Ultimo Tagliando"_s, before.lastServiceDate, after.lastServiceDate, date);
    differences.add(u"Prossimo Tagliando"_s, before.nextServiceDate, after.nextServiceDate, date);
    differences.add(u"Stato"_s, before.isActive, after.isActive, state);
    differences.add(u"Note"_s, before.notes, after.notes);
    QList<FieldDifference> all = differences.all();
    if (const QString history = historyDifference(before.maintenanceHistory, after.maintenanceHistory);
        !history.isEmpty())
        all.append({history, {}, {}});
    return all;
}

QList<FieldDifference> fieldDifferences(const EquipmentTypeModel& before, const EquipmentTypeModel& after)
{
    const std::function<QString(std::int64_t)> days = [](std::int64_t interval) { return daysText(interval); };
    const std::function<QString(bool)> state = [](bool active) { return active ? u"Attiva"_s : u"Inattiva"_s; };
    const std::function<QString(QString)> unseen = [](const QString&) { return QString(); };
    Differences differences;
    differences.add(u"Nome Tipologia"_s, before.name, after.name);
    differences.add(u"Intervallo Tagliando"_s, before.serviceIntervalDays, after.serviceIntervalDays, days);
    differences.add(u"Colore"_s, colorText(before.color), colorText(after.color));
    differences.add(u"Icona"_s, before.icon, after.icon, unseen);
    differences.add(u"Stato"_s, before.isActive, after.isActive, state);
    return differences.all();
}

QList<FieldDifference> fieldDifferences(const SettingsViewModel& before, const SettingsViewModel& after,
                                        const std::function<bool(const QString&)>& counts)
{
    using Key = SettingsViewModel::Key;
    const std::function<QString(bool)> on = yesOrNo;
    const std::function<QString(std::int64_t)> days = [](std::int64_t count) { return daysText(count); };
    Differences differences;
    if (counts(Key::notificationsEnabled))
        differences.add(u"Abilita Notifiche"_s, before.notificationsEnabled(), after.notificationsEnabled(), on);
    if (counts(Key::reminderDays))
        differences.add(u"Giorni di anticipo"_s, before.reminderDays(), after.reminderDays(), days);
    if (counts(Key::defaultServiceInterval))
        differences.add(u"Intervallo Tagliando Default"_s, before.defaultServiceInterval(),
                        after.defaultServiceInterval(), days);
    if (counts(Key::currencySymbol))
        differences.add(u"Simbolo Valuta"_s, before.currencySymbol(), after.currencySymbol());
    if (counts(Key::darkMode))
        differences.add(u"Modalità Scura"_s, before.darkMode(), after.darkMode(), on);
    if (counts(Key::checkForUpdatesOnLaunch))
        differences.add(u"Controlla aggiornamenti all'avvio"_s, before.checkForUpdatesOnLaunch(),
                        after.checkForUpdatesOnLaunch(), on);
    return differences.all();
}

} // namespace abissora
