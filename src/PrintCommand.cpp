// SPDX-License-Identifier: MIT
#include "PrintCommand.h"

#include "CommandLine.h"
#include "EquipmentFilter.h"
#include "ExitStatus.h"
#include "Literals.h"
#include "OutputFile.h"
#include "PageLayout.h"
#include "PaperLook.h"
#include "PaperSize.h"
#include "PrintedItem.h"
#include "PrintedList.h"
#include "StoredRegister.h"
#include "WorkProgress.h"

#include <QGuiApplication>
#include <optional>

namespace abissora {

namespace {

/// What fonts and pictures need, where there is none yet.
class FontHouse
{
public:
    FontHouse()
    {
        if (QCoreApplication::instance() != nullptr)
            return;
        qputenv("QT_QPA_PLATFORM", "offscreen");
        // What the toolkit says on its way to a screen that nobody sees is no help to the person.
        const QtMessageHandler usual =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        m_application.emplace(m_count, m_arguments.data());
        qInstallMessageHandler(usual);
    }
    Q_DISABLE_COPY_MOVE(FontHouse)

private:
    std::array<char, 9> m_name{"abissora"};
    std::array<char*, 2> m_arguments{m_name.data(), nullptr};
    int m_count = 1;
    std::optional<QGuiApplication> m_application;
};

QList<PageLayout> laidOut(const QList<PrintedPaper>& papers)
{
    const QSizeF size = pageSize(usualPaperSize(DateFormat::userLocale())).size(QPageSize::Point);
    QList<PageLayout> layouts;
    for (const PrintedPaper& paper : papers)
        layouts.append(PageLayout(paper, size));
    return layouts;
}

QList<PrintedPaper> papersOf(const QList<Equipment>& items, const QString& name, const StoredRegister& stored)
{
    if (name.isEmpty())
        return {PrintedList::listOf(apply({}, items).equipment, {}, stored.types(), stored.almanac())};
    QList<PrintedPaper> sheets;
    for (const Equipment& item : items) {
        if (item.name == name)
            sheets.append(PrintedItem::sheetOf(item, stored.types(), stored.almanac(), paperPicture));
    }
    return sheets;
}

} // namespace

int printCommand(const CommandLine& commandLine, const ApplicationDirectories& directories,
                 const CommandStreams& streams)
{
    const auto fail = [&streams](int status, const QString& sentence) {
        std::fputs(qUtf8Printable(sentence + u'\n'), streams.error);
        return status;
    };
    const FontHouse fonts;
    const StoredRegister stored(directories);
    if (!stored.equipment())
        return fail(exitStatus::noInput, stored.equipment().error());
    const QList<PrintedPaper> papers = papersOf(*stored.equipment(), commandLine.item, stored);
    if (papers.isEmpty())
        return fail(exitStatus::noInput, u"Nessun articolo si chiama «%1»."_s.arg(commandLine.item));
    const auto written = OutputFile::write(commandLine.operand, [&papers](QIODevice& file) {
        WorkProgress progress;
        return PagePainter::writePdf(file, laidOut(papers), paperInk(), progress);
    });
    if (!written)
        return fail(exitStatus::cannotCreate, OutputFile::failure(commandLine.operand, written.error()));
    return exitStatus::done;
}

} // namespace abissora
