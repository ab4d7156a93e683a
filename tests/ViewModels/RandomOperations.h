// SPDX-License-Identifier: MIT
#pragma once

#include "Builders.h"
#include "EmergencyCopy.h"
#include "FileSizeLimit.h"
#include "RegisterModel.h"

#include <random>

namespace abissora::test {

/// A program at work on a register, and the model beside it: operation() does with both what the generator draws, and
/// tells what differs afterwards.
class RandomOperations
{
public:
    explicit RandomOperations(quint32 seed)
        : m_random(seed)
    {
        m_run.emplace(m_place);
        m_model.memory.types = m_model.stored.types = m_run->types.types();
        m_model.memory.scalars = m_model.stored.scalars = {{u"iconSetVersion"_s, "4"}};
        m_model.memory.items = m_run->catalogue.equipment();
    }

    /// The first one fills the register.
    [[nodiscard]] QString operation()
    {
        struct Choice
        {
            int weight;
            const char* name;
            QString (RandomOperations::*what)();
        };
        using Self = RandomOperations;
        static constexpr std::array choices{
            Choice{80, "add an item", &Self::addItem},
            Choice{110, "update an item", &Self::updateItem},
            Choice{60, "delete an item", &Self::deleteItem},
            Choice{120, "add a record", &Self::addRecord},
            Choice{70, "update a record", &Self::updateRecord},
            Choice{60, "delete a record", &Self::deleteRecord},
            Choice{120, "attach or replace a document", &Self::attach},
            Choice{40, "remove a document", &Self::removeDocument},
            Choice{10, "what is not there", &Self::unknown},
            Choice{30, "add a type", &Self::addType},
            Choice{30, "update a type", &Self::updateType},
            Choice{25, "delete a type", &Self::deleteType},
            Choice{5, "reset the types", &Self::resetTypes},
            Choice{60, "change a setting", &Self::changeSetting},
            Choice{60, "let time pass", &Self::letTimePass},
            Choice{25, "another program", &Self::anotherProgram},
            Choice{40, "hinder, or no more", &Self::hinder},
            Choice{30, "retry", &Self::retry},
            Choice{20, "restart", &Self::restart},
            Choice{12, "restore", &Self::restoreAny},
            Choice{20, "a file of nobody", &Self::orphan},
        };
        static const int sum = std::accumulate(choices.begin(), choices.end(), 0,
                                               [](int all, const Choice& choice) { return all + choice.weight; });
        int drawn = m_model.stored.items.isEmpty() ? 0 : below(sum);
        const auto* choice = choices.begin();
        for (; drawn >= choice->weight; ++choice)
            drawn -= choice->weight;
        const QString problem = (this->*choice->what)();
        return problem.isEmpty() ? problem : QLatin1String(choice->name) + ": "_L1 + problem;
    }

    [[nodiscard]] QString checkWhole()
    {
        const QString problem = m_model.checkDocuments(false);
        return problem.isEmpty() ? m_model.checkWhole(*m_run) : problem;
    }

    /// Restores the states that the latest deletions kept, as far as they are listed.
    [[nodiscard]] QString bringBack(int count)
    {
        for (auto at = m_model.deletions.size(); at > 0 && count > 0; --at) {
            const RegisterModel::Deletion deletion = m_model.deletions.at(at - 1);
            if (!m_model.states.contains(deletion.state))
                continue;
            --count;
            if (QString problem = restore(deletion.state); !problem.isEmpty())
                return problem;
            if (!m_run->catalogue.equipment().contains(deletion.item))
                return u"item %1 did not come back with state %2"_s.arg(deletion.item.name, deletion.state);
            const auto attached = documentNames({deletion.item});
            for (const QString& name : attached) {
                const auto path = m_run->documents.url(name);
                if (!path || AtomicFile::read(*path).value() != m_model.documents.value(name))
                    return u"document %1 did not come back"_s.arg(name);
            }
            ++broughtBack;
        }
        return {};
    }

    int restored = 0;
    int broughtBack = 0;
    int emergencies = 0;
    /// Items that a write took something from, each found as it was in a state.
    [[nodiscard]] int deletions() const { return int(m_model.deletions.size()); }

private:
    enum class Hindrance { none, noSpace, littleSpace, inTheWay };

    int below(int bound) { return static_cast<int>(m_random() % static_cast<quint32>(bound)); }
    [[nodiscard]] Instant now() const { return m_place.clock.now(); }
    QUuid randomItem() { return m_model.memory.items.at(below(int(m_model.memory.items.size()))).id; }
    QString randomText() { return u"Testo %1"_s.arg(below(1000)); }

    /// Of the item, a record; a null one when it has none.
    QUuid randomRecord(const Equipment& item)
    {
        const auto count = int(item.maintenanceHistory.size());
        return count == 0 ? QUuid() : item.maintenanceHistory.at(below(count)).id;
    }

    template <typename Verb>
    void hindered(const Verb& verb)
    {
        std::optional<FileSizeLimit> limit;
        if (m_hindrance == Hindrance::noSpace)
            limit.emplace(rlim_t{250});
        else if (m_hindrance == Hindrance::littleSpace)
            limit.emplace(static_cast<rlim_t>(QFileInfo(preferencesFile()).size()));
        verb();
    }

    [[nodiscard]] QString preferencesFolder() const
    {
        return m_hindrance == Hindrance::inTheWay ? m_place.path(u"away"_s) : m_place.directories.preferences();
    }
    [[nodiscard]] QString preferencesFile() const { return preferencesFolder() + u"/savedEquipment.json"_s; }

    /// A verb that writes this key, with what it notifies and logs after the error that there may be.
    template <typename Verb>
    QString verb(const QString& key, const Verb& verb, QStringList log)
    {
        m_place.console.clear();
        hindered(verb);
        const bool failed = m_run->preferences.pending().contains(key);
        if (failed) {
            const QString what = key == registerKey ? u"equipment"_s : key == typesKey ? u"types"_s : u"settings"_s;
            log.prepend(u"Error saving %1: "_s.arg(what));
        }
        QStringList printed = m_place.console.calls();
        if (failed && !printed.isEmpty() && printed.first().startsWith(log.first()))
            printed.first() = log.first();
        if (printed != log)
            return u"logged "_s + printed.join(u" | "_s);
        if (failed ? m_hindrance == Hindrance::none : m_hindrance == Hindrance::inTheWay)
            return u"stored, or not, against expectation"_s;
        m_isShared = (m_isShared && (key != registerKey || failed)) || m_hindrance == Hindrance::noSpace;
        return m_model.afterOperation(*m_run, {key}, preferencesFolder());
    }

    template <typename Verb>
    QString registerVerb(const Verb& what, const QStringList& log = {})
    {
        return verb(registerKey, what, QStringList{u"<equipmentChanged>"_s, u"<changed>"_s} + log);
    }

    template <typename Verb>
    QString typesVerb(const Verb& what)
    {
        return verb(typesKey, what, {u"<typesChanged>"_s, u"<changed>"_s});
    }

    QString addItem();
    QString updateItem();
    QString deleteItem();
    QString addRecord();
    QString updateRecord();
    QString deleteRecord();
    QString attach();
    QString removeDocument();
    QString replaceDocument(Equipment item, Maintenance record, bool isReceipt, const std::optional<QString>& name);
    QString unknown();
    QString addType();
    QString updateType();
    QString deleteType();
    QString resetTypes();
    QString changeSetting();
    QString letTimePass();
    QString anotherProgram();
    QString hinder();
    QString retry();
    QString restart();
    QString restoreAny();
    QString orphan();

    QString restore(const QString& name);
    void unhinder();
    QString settleSaves();
    QString start(const QSet<QString>& replaced);

    std::mt19937 m_random;
    RegisterPlace m_place;
    std::optional<RegisterRun> m_run;
    RegisterModel m_model{m_place};
    Hindrance m_hindrance = Hindrance::none;
    bool m_isShared = false; ///< for want of space a state may share its file with the stored register
    int m_number = 0;
};

} // namespace abissora::test
