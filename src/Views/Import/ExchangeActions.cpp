// SPDX-License-Identifier: MIT
#include "ExchangeActions.h"

#include "Alert.h"
#include "Export.h"
#include "ImportView.h"
#include "Literals.h"
#include "OutputFile.h"
#include "ViewSheet.h"

#include <QPointer>
#include <cerrno>
#include <memory>

namespace abissora {

namespace {

const QString importTitle = u"Importa"_s;
const QString exportTitle = u"Esporta"_s;

// Functions of their own: what a coroutine waits for shall capture nothing of its frame.

LongWork::Function reading(const QString& path, const ImportContext& context,
                           const std::shared_ptr<std::optional<ImportPlan>>& plan)
{
    return [path, context, plan](WorkProgress& progress) -> IoResult<void> {
        auto source = readImport(path);
        if (!source)
            return tl::unexpected(IoError{source.error()});
        plan->emplace(*std::move(source), context, &progress);
        return {};
    };
}

LongWork::Function writing(const QString& path, ExportForm form, const ExportSource& source)
{
    return [path, form, source](WorkProgress& progress) -> IoResult<void> {
        const QByteArray bytes = exported(form, source, &progress);
        if (progress.isCancelled())
            return tl::unexpected(IoError::fromErrno(ECANCELED));
        return OutputFile::write(path, bytes);
    };
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
    const QString title = u"Lettura del file…"_s;
    const auto plan = std::make_shared<std::optional<ImportPlan>>();
    do {
        const auto progress = std::make_shared<WorkProgress>();
        const LongWork::Function work = reading(path, presentContext(), plan);
        const IoResult<void> read = co_await m_tools.work.run(title, work, progress);
        if (!alive || !over || progress->isCancelled())
            co_return;
        if (!read) {
            Alert::notice(over, importTitle, read.error().reason);
            co_return;
        }
    } while (isOutdated(**plan));
    ViewSheet* sheet = ImportView::makeSheet(
        std::move(**plan), m_tools.types, m_tools.work,
        [alive, over](const ImportPlan& chosen) {
            if (alive && over)
                alive->store(chosen, over);
        },
        over);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->open();
}

ImportContext ExchangeActions::presentContext() const
{
    return {m_tools.equipment.equipment(), m_tools.types.types(), m_tools.almanac.calendar, m_tools.almanac.now(),
            m_tools.settings.currencySymbol()};
}

bool ExchangeActions::isOutdated(const ImportPlan& plan) const
{
    return plan.context().equipment != m_tools.equipment.equipment() || plan.context().types != m_tools.types.types();
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
    const ExportSource source{m_tools.equipment.equipment(), m_tools.types.types(),    m_tools.almanac.calendar,
                              m_tools.almanac.now(),         DateFormat::userLocale(), m_tools.version};
    const QString title = u"Esportazione…"_s;
    const auto progress = std::make_shared<WorkProgress>();
    const LongWork::Function work = writing(target.path, form, source);
    const auto written = co_await m_tools.work.run(title, work, progress);
    if (over && !progress->isCancelled())
        Alert::notice(over, exportTitle,
                      written ? u"%1 in «%2»."_s.arg(exportedText(form, source), target.path)
                              : OutputFile::failure(target.path, written.error()));
}

} // namespace abissora
