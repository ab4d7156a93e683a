// SPDX-License-Identifier: MIT
#include "ExchangeActions.h"

#include "Alert.h"
#include "Export.h"
#include "ImportView.h"
#include "Literals.h"
#include "OutputFile.h"
#include "ViewSheet.h"

#include <QPointer>
#include <memory>

namespace abissora {

namespace {

const QString importTitle = u"Importa"_s;
const QString exportTitle = u"Esporta"_s;

using Read = tl::expected<ImportSource, QString>;

// Functions of their own: what a coroutine waits for shall capture nothing of its frame.

LongWork::Function reading(const QString& path, const std::shared_ptr<Read>& source)
{
    return [path, source](WorkProgress& /*progress*/) -> IoResult<void> {
        *source = readImport(path);
        return {};
    };
}

LongWork::Function writing(const QString& path, const QByteArray& bytes)
{
    return [path, bytes](WorkProgress& /*progress*/) { return OutputFile::write(path, bytes); };
}

} // namespace

ExchangeActions::ExchangeActions(const Tools& tools, QObject* parent)
    : QObject(parent)
    , m_tools(tools)
{}

void ExchangeActions::importFile(QWidget* over)
{
    const QPointer<QWidget> place(over);
    const QPointer<ExchangeActions> alive(this);
    const auto path = m_tools.panel.pickFile({
        .title = importTitle,
        .message = u"Scegli una tabella CSV o un registro esportato da Abissora"_s,
        .confirmLabel = importTitle,
        .contentTypes = {u"text/csv"_s, u"application/json"_s, u"text/plain"_s},
        .accepts = nullptr,
        .refusal = {},
    });
    // The panel runs the event loop.
    if (path && alive && place)
        importPath(*path, place);
}

void ExchangeActions::importPath(const QString& path, QWidget* over)
{
    readAndShow(path, over);
}

QCoro::Task<> ExchangeActions::readAndShow(QString path, QPointer<QWidget> over)
{
    const QPointer<ExchangeActions> alive(this);
    const auto source = std::make_shared<Read>();
    const auto progress = std::make_shared<WorkProgress>();
    co_await m_tools.work.run(u"Lettura del file…"_s, reading(path, source), progress);
    if (!alive || !over || progress->isCancelled())
        co_return;
    if (!*source) {
        Alert::notice(over, importTitle, source->error());
        co_return;
    }
    const ImportContext context{m_tools.equipment.equipment(), m_tools.types, m_tools.almanac,
                                m_tools.settings.currencySymbol()};
    ViewSheet* sheet = ImportView::makeSheet(
        ImportPlan(**source, context), m_tools.types,
        [alive, over](const ImportPlan& plan) {
            if (alive && over)
                alive->store(plan, over);
        },
        over);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->open();
}

void ExchangeActions::store(const ImportPlan& plan, QWidget* over)
{
    // First, so that the items find them; the state before both is kept once.
    const QList<EquipmentTypeModel> types = plan.types(m_tools.ids);
    if (!types.isEmpty())
        m_tools.types.importTypes(types);
    const ImportedRecords imported = plan.records(m_tools.ids);
    m_tools.equipment.importRecords(imported, types.isEmpty() ? Occasion::import : Occasion::change);
    Alert::notice(over, importTitle, importedText(imported) + u'.');
}

void ExchangeActions::exportRegister(QWidget* over)
{
    const QPointer<QWidget> place(over);
    const QPointer<ExchangeActions> alive(this);
    const auto target = m_tools.panel.pickTarget({
        .title = exportTitle,
        .message = u"Scegli che cosa esportare e dove"_s,
        .confirmLabel = exportTitle,
        .suggestedName = u"attrezzatura"_s,
        .formats = exportFormats(),
    });
    if (target && alive && place)
        exportTo(*target, place);
}

QCoro::Task<> ExchangeActions::exportTo(SaveTarget target, QPointer<QWidget> over)
{
    const auto form = static_cast<ExportForm>(target.format);
    const ExportSource source{m_tools.equipment.equipment(), m_tools.types.types(), m_tools.almanac,
                              DateFormat::userLocale(), m_tools.version};
    const auto written = co_await m_tools.work.run(u"Esportazione…"_s, writing(target.path, exported(form, source)),
                                                   std::make_shared<WorkProgress>());
    if (over)
        Alert::notice(over, exportTitle,
                      written ? u"%1 in «%2»."_s.arg(exportedText(form, source), target.path)
                              : OutputFile::failure(target.path, written.error()));
}

} // namespace abissora
