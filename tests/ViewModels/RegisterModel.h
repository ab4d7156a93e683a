// SPDX-License-Identifier: MIT
#pragma once

#include "AtomicFile.h"
#include "RegisterRun.h"
#include "StateContent.h"

#include <QMap>

namespace abissora::test {

using Files = QHash<QString, QByteArray>; ///< bytes by name

inline QStringList namesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

/// All files of a folder; preferences by their key.
inline Files filesIn(const QString& folder)
{
    Files files;
    for (const QString& name : QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Unsorted)) {
        QFile file(folder + u'/' + name);
        if (file.open(QIODevice::ReadOnly))
            files.insert(name.endsWith(".json"_L1) ? name.chopped(5) : name, file.readAll());
    }
    return files;
}

/// What the preferences hold, in memory or in the files of one moment.
struct RegisterContent
{
    QList<Equipment> items;
    QList<EquipmentTypeModel> types;
    Files scalars; ///< everything else

    friend bool operator==(const RegisterContent&, const RegisterContent&) = default;
};

/// Lists of what the program should hold, what should be stored, which earlier states there should be with what
/// content, and which documents. Compares them with the program and its folders; what differs is told as a text.
class RegisterModel
{
public:
    struct State
    {
        Files files;
        RegisterContent content;
        QSet<QString> documents; ///< that its records name
    };
    /// What a write took out of the stored register, with the state that has it.
    struct Deletion
    {
        QString state;
        Equipment item; ///< as it was stored, whole
    };

    RegisterContent memory;
    RegisterContent stored;
    bool isForeign = false;         ///< another program wrote the stored register
    Files documents;                ///< wherever they are
    QMap<QString, State> states;    ///< those listed
    QMap<QString, State> emergency; ///< those kept outside the register's folder
    QList<Deletion> deletions;

    explicit RegisterModel(const RegisterPlace& place)
        : m_place(place)
    {}

    // The verbs.

    [[nodiscard]] Equipment* item(const QUuid& id) { return found(memory.items, id); }

    static void addRecord(Equipment& item, const Maintenance& record)
    {
        item.maintenanceHistory.append(record);
        item.lastServiceDate = record.date;
        item.nextServiceDate = record.nextServiceDate;
    }

    static void takeDatesOfLatest(Equipment& item)
    {
        const Maintenance* latest = nullptr;
        for (const Maintenance& record : std::as_const(item.maintenanceHistory)) {
            if (!latest || record.date > latest->date)
                latest = &record;
        }
        if (latest) {
            item.lastServiceDate = latest->date;
            item.nextServiceDate = latest->nextServiceDate;
        }
    }

    // The comparisons. Each gives an empty text when all is as it should be.

    /// After an operation that wrote, or should have written, these keys. `preferences` is the folder with the files.
    [[nodiscard]] QString afterOperation(const RegisterRun& run, const QSet<QString>& written,
                                         const QString& preferences)
    {
        const RegisterContent before = stored;
        const bool wasForeign = isForeign;
        if (written.contains(everything)) {
            stored = memory;
            isForeign = false;
        }
        for (const QString& key : written) {
            if (key != everything && !run.preferences.pending().contains(key))
                take(key, memory);
        }
        if (run.catalogue.equipment() != memory.items)
            return u"the catalogue holds another list"_s;
        if (run.types.types() != memory.types)
            return u"the types are another list"_s;
        if (QByteArray::number(qint64(run.settings.reminderDays())) != memory.scalars.value(reminderKey, "30"))
            return u"the setting has another value"_s;
        const Files filesBefore = std::exchange(m_files, filesIn(preferences));
        QString problem = checkStored(filesBefore);
        if (problem.isEmpty())
            problem = checkStates(before, filesBefore);
        if (problem.isEmpty() && filesBefore != m_files)
            problem = checkKept(before, wasForeign);
        return problem.isEmpty() ? checkTemporaries() : problem;
    }

    /// The files are those of the program's last look no more.
    void foreignRegister(const QList<Equipment>& items, const QByteArray& bytes)
    {
        stored.items = items;
        m_files.insert(registerKey, bytes);
        isForeign = true;
    }

    /// Every document that the stored register names is somewhere.
    [[nodiscard]] QString checkNamedDocuments() const
    {
        QStringList archived;
        const QSet<QString> named = documentNames(stored.items);
        for (const QString& name : named) {
            if (QFile::exists(m_place.directories.maintenanceDocuments() + u'/' + name))
                continue;
            if (archived.isEmpty())
                archived = namesIn(m_place.directories.archivedDocuments());
            if (archived.filter(name).isEmpty())
                return u"document %1 is gone"_s.arg(name);
        }
        return {};
    }

    /// And every one that a listed state names, and none is gone that is young. To be called before what may purge.
    /// `isSettled` after a start.
    [[nodiscard]] QString checkDocuments(bool isSettled)
    {
        const QString folder = m_place.directories.maintenanceDocuments();
        const QStringList present = namesIn(folder);
        const QSet<QString> inFolder(present.begin(), present.end());
        QHash<QString, Instant> inArchive;
        for (const QString& file : namesIn(m_place.directories.archivedDocuments())) {
            const QString name = file.mid(stampLength);
            // A state's name and a document's begin with the same time.
            inArchive.insert(name, m_archived.contains(name) && m_archivedAs.contains(file)
                                       ? m_archived.value(name)
                                       : parseStateName(file.left(stampLength) + u"change"_s).value().kept);
            m_archivedAs.insert(file);
        }
        QSet<QString> named = documentNames(stored.items);
        const QSet<QString> ofRegister = named;
        for (const auto* all : {&states, &emergency}) {
            for (const State& state : *all)
                named += state.documents;
        }
        const QStringList known = documents.keys();
        for (const QString& name : known) {
            if (inFolder.contains(name) || inArchive.contains(name))
                continue;
            const bool wasOld = m_archived.contains(name) && m_archived[name] + std::chrono::days(30) <= now();
            if (named.contains(name) || !wasOld)
                return u"document %1 is gone (named: %2)"_s.arg(name).arg(named.contains(name));
            documents.remove(name);
        }
        for (const QString& name : std::as_const(named)) {
            if (!documents.contains(name))
                return u"document %1 is named but unknown"_s.arg(name);
        }
        m_archived = inArchive;
        if (!isSettled)
            return {};
        for (const QString& name : inFolder) {
            if (isDocumentName(name) && !ofRegister.contains(name))
                return u"document %1 is named by nobody, and still in the folder"_s.arg(name);
        }
        for (const QString& name : ofRegister) {
            if (!inFolder.contains(name))
                return u"document %1 did not come back"_s.arg(name);
        }
        for (auto entry = inArchive.cbegin(); entry != inArchive.cend(); ++entry) {
            if (*entry + std::chrono::days(30) <= now() && !named.contains(entry.key()))
                return u"document %1 was not purged"_s.arg(entry.key());
        }
        return {};
    }

    /// All bytes of all documents and of all states, which read whole.
    [[nodiscard]] QString checkWhole(const RegisterRun& run)
    {
        Files found = filesIn(m_place.directories.maintenanceDocuments());
        const Files archived = filesIn(m_place.directories.archivedDocuments());
        for (auto file = archived.cbegin(); file != archived.cend(); ++file)
            found.insert(file.key().mid(stampLength), *file);
        for (auto document = documents.cbegin(); document != documents.cend(); ++document) {
            if (found.value(document.key()) != *document)
                return u"document %1 has another content"_s.arg(document.key());
        }
        const QList<EarlierState> listed = run.generations.list();
        if (listed.size() != states.size() + emergency.size())
            return u"%1 states are listed"_s.arg(listed.size());
        for (const EarlierState& state : listed) {
            const State& known = state.occasion == Occasion::emergency ? emergency[state.name] : states[state.name];
            const StateContent content = readContent(state);
            if (!content.isWhole() || content.equipment.records != known.content.items ||
                content.types.records != known.content.types)
                return u"state %1 does not read as it was kept"_s.arg(state.name);
            if (filesIn(state.path) != known.files)
                return u"state %1 has other files"_s.arg(state.name);
        }
        return {};
    }

    /// After the program ended with something that it could not store.
    [[nodiscard]] QString takeEmergencyCopy()
    {
        for (const QString& name : namesIn(m_place.directories.emergency())) {
            if (emergency.contains(name))
                continue;
            const Files files = filesIn(m_place.directories.emergency() + u'/' + name);
            if (decodeEquipment(files.value(registerKey)) != memory.items ||
                decodeTypes(files.value(typesKey)) != memory.types || scalarsOf(files) != memory.scalars)
                return u"the emergency copy is not what was in memory"_s;
            emergency.insert(name, {files, memory, documentNames(memory.items)});
            return {};
        }
        return u"there is no emergency copy"_s;
    }

    inline static const QString reminderKey = u"reminderDays"_s;
    inline static const QString everything = u"*"_s; ///< in the place of all keys

private:
    static constexpr qsizetype stampLength = 21; ///< before a document's name in the archive

    [[nodiscard]] Instant now() const { return m_place.clock.now(); }

    template <typename List>
    static auto found(List& list, const QUuid& id) -> decltype(list.data())
    {
        for (auto& element : list) {
            if (element.id == id)
                return &element;
        }
        return nullptr;
    }

    static Files scalarsOf(Files files)
    {
        files.remove(registerKey);
        files.remove(typesKey);
        return files;
    }

    void take(const QString& key, const RegisterContent& from)
    {
        if (key == registerKey) {
            stored.items = from.items;
            isForeign = false;
        } else if (key == typesKey) {
            stored.types = from.types;
        } else {
            stored.scalars.insert(key, from.scalars.value(key));
        }
    }

    [[nodiscard]] QString checkStored(const Files& before) const
    {
        // Bytes that are the same have been read before.
        if (m_files.value(registerKey) != before.value(registerKey) || before.isEmpty() || isForeign) {
            if (decodeEquipment(m_files.value(registerKey)) != stored.items)
                return u"the stored register is another one"_s;
        } else if (stored.items != m_read.items) {
            return u"the register was not stored"_s;
        }
        if (m_files.value(typesKey) != before.value(typesKey) || stored.types != m_read.types) {
            if (decodeTypes(m_files.value(typesKey)) != stored.types)
                return u"the stored types are others"_s;
        }
        m_read = stored;
        return scalarsOf(m_files) == stored.scalars ? QString() : u"the stored settings are others"_s;
    }

    /// States that are new hold what was stored before, or between two writes of the operation.
    [[nodiscard]] QString checkStates(const RegisterContent& before, const Files& filesBefore)
    {
        const QString folder = m_place.directories.backups();
        QStringList listed = namesIn(folder);
        listed.removeAll(u"documents"_s);
        const QString newest = states.isEmpty() ? QString() : states.lastKey();
        for (const QString& name : std::as_const(listed)) {
            if (states.contains(name))
                continue;
            if (name < newest || !parseStateName(name))
                return u"%1 among the states"_s.arg(name);
            State state{filesIn(folder + u'/' + name), {}, {}};
            for (auto file = state.files.cbegin(); file != state.files.cend(); ++file) {
                if (*file != filesBefore.value(file.key()) && *file != m_files.value(file.key()))
                    return u"%1 of state %2 was never stored"_s.arg(file.key(), name);
            }
            const auto is = [&](const QString& key) { return state.files.value(key) == filesBefore.value(key); };
            state.content = {is(registerKey) ? before.items : stored.items, is(typesKey) ? before.types : stored.types,
                             scalarsOf(state.files)};
            state.documents = documentNames(state.content.items);
            states.insert(name, state);
        }
        if (!newest.isEmpty() && !listed.contains(newest))
            return u"the newest state is gone"_s;
        const QStringList known = states.keys();
        for (const QString& name : known) {
            if (!listed.contains(name))
                states.remove(name);
        }
        return {};
    }

    /// What a write took away, what another program wrote, and the end of the last day are in one of the newest states.
    [[nodiscard]] QString checkKept(const RegisterContent& before, bool wasForeign)
    {
        const auto lacks = [](const auto& list, const QUuid& id) { return !found(list, id); };
        QList<Equipment> lost;
        for (const Equipment& item : before.items) {
            const Equipment* after = found(stored.items, item.id);
            bool isLost = !after || !documentNames({*after}).contains(documentNames({item}));
            for (const Maintenance& record : item.maintenanceHistory)
                isLost = isLost || lacks(after->maintenanceHistory, record.id);
            if (isLost)
                lost.append(item);
        }
        const bool hasLostType = std::ranges::any_of(
            before.types, [&](const EquipmentTypeModel& type) { return lacks(stored.types, type.id); });
        const bool isOverwritten = wasForeign && !isForeign;
        const auto state = stateWith([&](const State& kept) { return kept.content.items == before.items; });
        if ((!lost.isEmpty() || isOverwritten) && state.isEmpty())
            return u"what the register held before is in none of the newest states"_s;
        if (hasLostType && stateWith([&](const State& kept) { return kept.content.types == before.types; }).isEmpty())
            return u"the types before are in none of the newest states"_s;
        const auto day = [this](Instant at) { return m_place.calendar.local(at).date(); };
        if (!m_read.items.isEmpty() && !before.items.isEmpty() &&
            (states.isEmpty() || day(parseStateName(states.lastKey())->kept) < day(now())) && !isSame(before))
            return u"the first change of the day kept nothing"_s;
        for (const Equipment& item : std::as_const(lost))
            deletions.append({state, item});
        return {};
    }

    [[nodiscard]] bool isSame(const RegisterContent& before) const
    {
        return !states.isEmpty() && states.last().content == before;
    }

    template <typename Is>
    [[nodiscard]] QString stateWith(Is is) const
    {
        int looked = 0;
        for (auto state = states.cend(); state != states.cbegin() && looked < 3; ++looked) {
            --state;
            if (is(*state))
                return state.key();
        }
        return {};
    }

    [[nodiscard]] QString checkTemporaries() const
    {
        const ApplicationDirectories& at = m_place.directories;
        for (const QString& folder :
             {at.preferences(), at.maintenanceDocuments(), at.backups(), at.archivedDocuments()}) {
            const QStringList left = QDir(folder).entryList({u"*.tmp"_s}, QDir::AllEntries | QDir::Hidden);
            if (!left.isEmpty())
                return u"%1 was left in %2"_s.arg(left.first(), folder);
        }
        return {};
    }

    const RegisterPlace& m_place;
    Files m_files;                      ///< of the preferences, as last seen
    mutable RegisterContent m_read;     ///< that the files were read as
    QHash<QString, Instant> m_archived; ///< when, as last seen
    QSet<QString> m_archivedAs;         ///< the names of files of which that is known
};

} // namespace abissora::test
