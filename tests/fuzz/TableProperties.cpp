// SPDX-License-Identifier: MIT
#include "TableProperties.h"

#include "EquipmentTypeViewModel.h"
#include "Export.h"
#include "ImportPlan.h"
#include "Literals.h"
#include "RecordJson.h"

#include <QTimeZone>

namespace abissora::test {

namespace {

class NoConsole final : public Console
{
public:
    void print(const QString& /*text*/) override {}
};

class NothingWritten final : public StateKeeper
{
public:
    [[nodiscard]] IoResult<void> beforeWriting(const QString& /*key*/, Occasion /*occasion*/) override
    {
        return tl::unexpected(IoError{u"Only read"_s});
    }
    [[nodiscard]] IoResult<void> keepUnreadable(const QString& /*key*/) override { return {}; }
};

class NoSymbols final : public SymbolLibrary
{
public:
    [[nodiscard]] bool contains(const QString& /*name*/) const override { return true; }
};

class FixedMoment final : public Clock
{
public:
    [[nodiscard]] Instant now() const override { return std::chrono::sys_days{std::chrono::year{2026} / 6 / 15}; }
};

/// A register with one item, so that records may find theirs.
class Stage
{
public:
    [[nodiscard]] ImportContext context(const QList<Equipment>& items) const
    {
        return {items, m_types.types(), Calendar{QTimeZone::utc()}, m_clock.now(), u"€"_s};
    }
    [[nodiscard]] ExportSource source(const QList<Equipment>& items) const
    {
        return {items,
                m_types.types(),
                Calendar{QTimeZone::utc()},
                m_clock.now(),
                QLocale(QLocale::Italian, QLocale::Italy),
                u"1"_s};
    }
    [[nodiscard]] static QList<Equipment> stored()
    {
        Equipment item;
        item.id = QUuid(u"00000000-0000-4000-8000-000000000001"_s);
        item.name = u"Muta"_s;
        item.serialNumber = u"SN-1"_s;
        return {item};
    }

private:
    FixedMoment m_clock;
    NoConsole m_console;
    NothingWritten m_keeper;
    NoSymbols m_symbols;
    RandomIdGenerator m_ids;
    PreferencesStore m_preferences{u"/nowhere"_s, m_keeper};
    EquipmentTypeViewModel m_types{m_preferences, m_symbols, m_console, m_ids};
};

bool isShortLine(const QString& text)
{
    constexpr qsizetype longest = 400;
    const auto isControl = [](QChar c) { return c.category() == QChar::Other_Control; };
    return !text.isEmpty() && text.size() < longest && std::ranges::none_of(text, isControl);
}

QString chooseAll(ImportPlan& plan)
{
    for (qsizetype row = 0; row < plan.rows().size(); ++row) {
        if (plan.rows().at(row).cells.size() != plan.columns().size())
            return u"a row has not as many cells as there are columns"_s;
        plan.setChosen(row, true);
        if (plan.isChosen(row) != plan.canBeChosen(row))
            return u"a faulty row can be chosen"_s;
    }
    const QStringList faults = plan.faults(1000);
    const auto wrong = std::ranges::find_if_not(faults, isShortLine);
    return wrong == faults.end() ? QString() : u"a fault is no short line: "_s + *wrong;
}

/// Ids are new, and a table has none.
QList<Equipment> withoutIds(QList<Equipment> items)
{
    for (Equipment& item : items) {
        item.id = {};
        for (Maintenance& record : item.maintenanceHistory)
            record.id = {};
    }
    return items;
}

QString faultWithRegister(const Stage& stage, const QList<Equipment>& items)
{
    RandomIdGenerator ids;
    const auto again = parseImport(u"a.json"_s, exported(ExportForm::Register, stage.source(items)));
    if (!again)
        return u"an exported register is refused: "_s + again.error();
    ImportPlan plan(*again, stage.context({}));
    plan.setNewChosen(true);
    if (withoutIds(plan.records(ids).items).size() != items.size())
        return u"an exported register has another number of items"_s;
    return {};
}

QString faultWithTables(const Stage& stage, const QList<Equipment>& items)
{
    const QString noRows = u"Nel file non ci sono righe sotto le intestazioni."_s;
    for (const ExportForm form : {ExportForm::Items, ExportForm::Records}) {
        const auto again = parseImport(u"a.csv"_s, exported(form, stage.source(items)));
        if (!again && again.error() != noRows)
            return u"an exported table is refused: "_s + again.error();
        if (!again)
            continue;
        const ImportPlan plan(*again, stage.context(items));
        if (form == ExportForm::Items && plan.rows().size() != items.size())
            return u"an exported table has another number of rows"_s;
        for (qsizetype i = 0; form == ExportForm::Items && i < items.size(); ++i) {
            const QString name = QString(items.at(i).name).remove(QChar(QChar::Null));
            if (plan.rows().at(i).item.name != name && !name.trimmed().isEmpty())
                return u"an exported item comes in under another name: "_s + name;
            if (!plan.canBeChosen(i) && !name.trimmed().isEmpty())
                return u"an exported item comes in with faults: "_s + plan.faults(1).value(0);
        }
    }
    return exported(ExportForm::Calendar, stage.source(items)).isEmpty() ? u"there is no calendar"_s : QString();
}

} // namespace

QString faultWithImport(const QByteArray& file)
{
    static const Stage stage;
    const auto source = parseImport(u"a.csv"_s, file);
    if (!source)
        return isShortLine(source.error()) ? QString() : u"the refusal is no short line: "_s + source.error();
    ImportPlan plan(*source, stage.context(Stage::stored()));
    if (const QString fault = chooseAll(plan); !fault.isEmpty())
        return fault;
    RandomIdGenerator ids;
    QList<Equipment> items = Stage::stored();
    addImported(items, plan.records(ids));
    const auto encoded = encode(items);
    if (!encoded)
        return u"what was imported cannot be stored: "_s + encoded.error().description();
    const auto decoded = decodeEquipment(*encoded);
    if (!decoded || *decoded != items)
        return u"what was imported is stored in another way"_s;
    const QString fault = faultWithRegister(stage, items);
    return fault.isEmpty() ? faultWithTables(stage, items) : fault;
}

} // namespace abissora::test
