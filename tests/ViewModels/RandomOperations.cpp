// SPDX-License-Identifier: MIT
#include "RandomOperations.h"

namespace abissora::test {

QString RandomOperations::addItem()
{
    if (m_model.memory.items.size() >= 14)
        return deleteItem();
    Equipment item = equipment(1, u"Attrezzo %1"_s.arg(++m_number));
    item.id = m_place.ids.next();
    item.notes = randomText();
    m_model.memory.items.append(item);
    return registerVerb([&] { m_run->catalogue.addEquipment(item); }, {u"➕ Aggiunto equipaggiamento: "_s + item.name});
}

QString RandomOperations::updateItem()
{
    Equipment& item = *m_model.item(randomItem());
    switch (below(4)) {
    case 0:
        item.name = u"Nome %1"_s.arg(++m_number);
        break;
    case 1:
        item.isActive = !item.isActive;
        break;
    case 2:
        item.customTypeName = randomText();
        break;
    default: // as a form that leaves a record out
        if (!item.maintenanceHistory.isEmpty() && below(3) == 0)
            item.maintenanceHistory.removeFirst();
        item.nextServiceDate = now();
    }
    const Equipment edited = item;
    return registerVerb([&] { m_run->catalogue.updateEquipment(edited); },
                        {u"✏️ Aggiornato equipaggiamento: "_s + edited.name});
}

QString RandomOperations::deleteItem()
{
    if (m_model.memory.items.size() <= 3)
        return addItem();
    const Equipment item = *m_model.item(randomItem());
    m_model.memory.items.removeOne(item);
    return registerVerb([&] { m_run->catalogue.deleteEquipment(item); },
                        {u"🗑️ Eliminato equipaggiamento: "_s + item.name});
}

QString RandomOperations::addRecord()
{
    Equipment& item = *m_model.item(randomItem());
    if (item.maintenanceHistory.size() >= 3)
        return deleteRecord();
    Maintenance record = maintenance(1, now() - std::chrono::hours(below(10'000)), now() + std::chrono::hours(9000));
    record.id = m_place.ids.next();
    record.cost = below(10'000) / 100.0;
    record.notes = randomText();
    RegisterModel::addRecord(item, record);
    return registerVerb([&, id = item.id] { m_run->catalogue.addMaintenance(id, record); });
}

QString RandomOperations::updateRecord()
{
    Equipment& item = *m_model.item(randomItem());
    if (item.maintenanceHistory.isEmpty())
        return addRecord();
    Maintenance& record = item.maintenanceHistory[below(int(item.maintenanceHistory.size()))];
    record.date = now() - std::chrono::hours(below(10'000));
    record.description = randomText();
    const Maintenance edited = record;
    RegisterModel::takeDatesOfLatest(item);
    return registerVerb([&, id = item.id] { m_run->catalogue.updateMaintenance(id, edited); });
}

QString RandomOperations::deleteRecord()
{
    Equipment& item = *m_model.item(randomItem());
    if (item.maintenanceHistory.isEmpty())
        return addRecord();
    const QUuid record = randomRecord(item);
    item.maintenanceHistory.removeIf([&](const Maintenance& kept) { return kept.id == record; });
    RegisterModel::takeDatesOfLatest(item);
    return registerVerb([&, id = item.id] { m_run->catalogue.deleteMaintenance(id, record); });
}

QString RandomOperations::attach()
{
    const Equipment item = *m_model.item(randomItem());
    if (item.maintenanceHistory.isEmpty())
        return addRecord();
    const QString source = m_place.path(u"source.pdf"_s);
    const QByteArray bytes = "%PDF-" + QByteArray::number(++m_number) + QByteArray(below(400), 'x');
    if (!AtomicFile::replace(source, bytes))
        return u"no source"_s;
    m_place.console.clear();
    std::optional<QString> name;
    hindered([&] { name = QCoro::waitFor(m_run->documents.store(source)); });
    const bool isTooLarge = m_hindrance == Hindrance::noSpace && bytes.size() > 250;
    if (name.has_value() == isTooLarge && m_hindrance != Hindrance::littleSpace)
        return u"the document was stored, or not, against expectation"_s;
    const QString log = m_place.console.text();
    if (!name)
        return log.startsWith("Errore salvataggio documento: "_L1) ? QString() : u"logged "_s + log;
    m_model.documents.insert(*name, bytes);
    const Maintenance record = item.maintenanceHistory.at(below(int(item.maintenanceHistory.size())));
    return replaceDocument(item, record, below(2) == 0, name);
}

QString RandomOperations::removeDocument()
{
    for (const Equipment& item : std::as_const(m_model.memory.items)) {
        for (const Maintenance& record : item.maintenanceHistory) {
            if ((record.receiptFileName || record.certificateFileName) && below(4) == 0)
                return replaceDocument(item, record, record.receiptFileName.has_value(), std::nullopt);
        }
    }
    return attach();
}

/// First the register, then the file that it names no more; by either of the verbs that can.
QString RandomOperations::replaceDocument(Equipment item, Maintenance record, bool isReceipt,
                                          const std::optional<QString>& name)
{
    auto& slot = isReceipt ? record.receiptFileName : record.certificateFileName;
    const std::optional<QString> replaced = std::exchange(slot, name);
    *std::ranges::find(item.maintenanceHistory, record.id, &Maintenance::id) = record;
    QString problem;
    if (below(2) == 0) {
        RegisterModel::takeDatesOfLatest(item);
        *m_model.item(item.id) = item;
        problem = registerVerb([&] { m_run->catalogue.updateMaintenance(item.id, record); });
    } else {
        *m_model.item(item.id) = item;
        problem = registerVerb([&] { m_run->catalogue.updateEquipment(item); },
                               {u"✏️ Aggiornato equipaggiamento: "_s + item.name});
    }
    if (replaced)
        m_run->documents.deleteDocument(*replaced);
    return problem.isEmpty() ? m_model.checkNamedDocuments() : problem;
}

QString RandomOperations::unknown()
{
    m_place.console.clear();
    Equipment item = equipment(1);
    item.id = m_place.ids.next();
    m_run->catalogue.updateEquipment(item);
    m_run->catalogue.deleteEquipment(item);
    m_run->catalogue.addMaintenance(item.id, maintenance(1));
    m_run->catalogue.deleteMaintenance(item.id, item.id);
    m_run->catalogue.updateMaintenance(randomItem(), maintenance(1));
    m_run->types.deleteType(equipmentType(1, {}));
    if (!m_place.console.calls().isEmpty())
        return u"logged "_s + m_place.console.text();
    return m_model.afterOperation(*m_run, {}, preferencesFolder());
}

QString RandomOperations::addType()
{
    if (m_model.memory.types.size() >= 20)
        return deleteType();
    EquipmentTypeModel type = equipmentType(1, u"Tipo %1"_s.arg(++m_number));
    type.id = m_place.ids.next();
    m_model.memory.types.append(type);
    return typesVerb([&] { m_run->types.addType(type); });
}

QString RandomOperations::updateType()
{
    EquipmentTypeModel& type = m_model.memory.types[below(int(m_model.memory.types.size()))];
    type.name = u"Tipo %1"_s.arg(++m_number);
    type.isActive = !type.isActive;
    return typesVerb([&, edited = type] { m_run->types.updateType(edited); });
}

QString RandomOperations::deleteType()
{
    if (m_model.memory.types.size() <= 3)
        return addType();
    const EquipmentTypeModel type = m_model.memory.types.takeAt(below(int(m_model.memory.types.size())));
    return typesVerb([&] { m_run->types.deleteType(type); });
}

QString RandomOperations::resetTypes()
{
    // Two keys are written, and each may fail.
    m_place.console.clear();
    hindered([&] { m_run->types.resetToDefaults(); });
    m_model.memory.types = m_run->types.types();
    if (m_model.memory.types.size() != 16 || m_place.console.calls().count(u"<typesChanged>"_s) != 1)
        return u"the types were not reset"_s;
    m_isShared = m_isShared || m_hindrance == Hindrance::noSpace;
    return m_model.afterOperation(*m_run, {typesKey, u"iconSetVersion"_s}, preferencesFolder());
}

QString RandomOperations::changeSetting()
{
    const int days = below(365);
    m_model.memory.scalars.insert(RegisterModel::reminderKey, QByteArray::number(days));
    return verb(RegisterModel::reminderKey, [&] { m_run->settings.setReminderDays(days); },
                {u"<reminderDaysChanged>"_s, u"<changed>"_s});
}

QString RandomOperations::letTimePass()
{
    const int drawn = below(100);
    const int hours = drawn < 2 ? 24 * (28 + below(40)) : drawn < 8 ? 24 * (1 + below(3)) : 0;
    m_place.clock.advance(std::chrono::hours(hours) + std::chrono::minutes(1 + below(90)));
    return m_model.afterOperation(*m_run, {}, preferencesFolder());
}

/// Its list is the stored one without something and with something else.
QString RandomOperations::anotherProgram()
{
    unhinder();
    QList<Equipment> list = m_model.stored.items;
    if (list.size() > 3)
        list.removeAt(below(int(list.size())));
    list.first().notes += u'!';
    list.append(equipment(1, u"Altrui %1"_s.arg(++m_number)));
    list.last().id = m_place.ids.next();
    const QByteArray bytes = encode(list).value();
    bool written = false;
    if (below(2) == 0 && !m_isShared) {
        QFile file(preferencesFile());
        written = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    } else {
        written = AtomicFile::replace(preferencesFile(), bytes).has_value();
        m_isShared = false;
    }
    if (!written)
        return u"cannot write"_s;
    m_model.foreignRegister(list, bytes);
    return m_model.afterOperation(*m_run, {}, preferencesFolder());
}

QString RandomOperations::hinder()
{
    if (m_hindrance != Hindrance::none) {
        unhinder();
        return below(3) == 0 ? QString() : retry();
    }
    m_hindrance = static_cast<Hindrance>(1 + below(3));
    const QString preferences = m_place.directories.preferences();
    const bool isReady = m_hindrance != Hindrance::inTheWay ||
                         (QDir().rename(preferences, m_place.path(u"away"_s)) && AtomicFile::replace(preferences, "?"));
    return isReady ? QString() : u"cannot hinder"_s;
}

void RandomOperations::unhinder()
{
    const QString preferences = m_place.directories.preferences();
    if (m_hindrance == Hindrance::inTheWay &&
        (!QFile::remove(preferences) || !QDir().rename(m_place.path(u"away"_s), preferences)))
        qFatal("the preferences cannot be put back");
    m_hindrance = Hindrance::none;
}

QString RandomOperations::retry()
{
    const QStringList before = m_run->preferences.pending().keys();
    m_place.console.clear();
    bool isDone = false;
    hindered([&] { isDone = m_run->saveRetry.retry(); });
    const auto pending = m_run->preferences.pending();
    QStringList written = before;
    written.removeIf([&](const QString& key) { return pending.contains(key); });
    written.sort();
    const QString log = written.isEmpty() ? QString() : u"💾 Salvato dopo un errore: "_s + written.join(u", "_s);
    if (m_place.console.text() != log || isDone != pending.isEmpty())
        return u"logged "_s + m_place.console.text();
    if (m_hindrance == Hindrance::none && !isDone)
        return u"nothing hinders, and it is not stored"_s;
    m_isShared = (m_isShared && !written.contains(registerKey)) || m_hindrance == Hindrance::noSpace;
    return m_model.afterOperation(*m_run, {before.begin(), before.end()}, preferencesFolder());
}

/// What the program does before it ends, or before another state takes the place of the present one.
QString RandomOperations::settleSaves()
{
    // The disk is seldom full at that very moment.
    if (m_hindrance == Hindrance::inTheWay || below(4) > 0)
        unhinder();
    if (QString problem = retry(); !problem.isEmpty())
        return problem;
    if (QString problem = m_model.checkDocuments(false); !problem.isEmpty())
        return problem;
    m_hindrance = Hindrance::none;
    if (m_run->preferences.pending().isEmpty())
        return {};
    m_place.clock.advance(std::chrono::minutes(1));
    ++emergencies;
    if (!keepEmergencyCopy(m_run->preferences, m_place.directories, m_place.clock))
        return u"no emergency copy"_s;
    return m_model.takeEmergencyCopy();
}

QString RandomOperations::start(const QSet<QString>& replaced)
{
    m_run.reset();
    m_place.console.clear();
    m_run.emplace(m_place);
    if (m_place.console.calls().size() != 1 || !m_place.console.text().startsWith(u"📦 Caricati "_s))
        return u"logged "_s + m_place.console.text();
    const QString problem = m_model.afterOperation(*m_run, replaced, preferencesFolder());
    return problem.isEmpty() ? m_model.checkDocuments(true) : problem;
}

QString RandomOperations::restart()
{
    if (QString problem = settleSaves(); !problem.isEmpty())
        return problem;
    m_model.memory = m_model.stored;
    m_model.isForeign = false;
    return start({});
}

QString RandomOperations::restoreAny()
{
    if (below(2) == 0) {
        for (int tries = 0; tries < 20 && !m_model.deletions.isEmpty(); ++tries) {
            const auto latest = std::min(60, int(m_model.deletions.size()));
            const auto& deletion = m_model.deletions.at(m_model.deletions.size() - 1 - below(latest));
            if (m_model.states.contains(deletion.state))
                return restore(deletion.state);
        }
    }
    QStringList names = m_model.states.keys();
    names += m_model.emergency.keys();
    return names.isEmpty() ? restart() : restore(names.at(below(int(names.size()))));
}

QString RandomOperations::restore(const QString& name)
{
    if (QString problem = settleSaves(); !problem.isEmpty())
        return problem;
    const auto state = m_run->generations.find(name);
    if (!state) // settling kept a newer one in its place
        return m_model.states.contains(name) ? u"state %1 is not listed"_s.arg(name) : QString();
    const auto& all = m_model.emergency.contains(name) ? m_model.emergency : m_model.states;
    m_model.memory = all[name].content;
    if (!Restoration(m_place.directories, m_run->generations).restore(*state))
        return u"state %1 cannot be restored"_s.arg(name);
    m_isShared = false;
    ++restored;
    return start({RegisterModel::everything});
}

QString RandomOperations::orphan()
{
    const QString folder = m_place.directories.maintenanceDocuments();
    if (!AtomicFile::makeFolder(folder))
        return u"no folder"_s;
    const QByteArray bytes = randomText().toUtf8();
    if (below(4) == 0)
        return AtomicFile::replace(folder + u"/appunti.txt"_s, bytes) ? QString() : u"cannot write"_s;
    const QString name = uuidText(m_place.ids.next()) + u".pdf"_s;
    m_model.documents.insert(name, bytes);
    return AtomicFile::replace(folder + u'/' + name, bytes) ? QString() : u"cannot write"_s;
}

} // namespace abissora::test
