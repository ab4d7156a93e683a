// SPDX-License-Identifier: MIT
#include "PrinterOutput.h"

#include "Literals.h"
#include "PageLayout.h"
#include "PaperLook.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

namespace abissora {

bool printOn(QPrinter& printer, const PrintedPaper& paper)
{
    printer.setFullPage(true);
    const PageLayout layout(paper, printer.pageLayout().fullRect(QPageLayout::Point).size());
    const auto count = static_cast<int>(layout.pages().size());
    const bool isPart = printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0;
    const int first = isPart ? std::min(printer.fromPage(), count) : 1;
    const int last = isPart ? std::clamp(printer.toPage(), first, count) : count;
    const int copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    for (int copy = 0; copy < copies; ++copy) {
        for (int page = first; page <= last; ++page) {
            if ((copy > 0 || page > first) && !printer.newPage())
                return false;
            PagePainter::paint(painter, QRectF(QPointF(), printer.pageRect(QPrinter::DevicePixel).size()), layout,
                               page - 1, paperInk());
        }
    }
    return painter.end();
}

void openPrintDialog(const PrintedPaper& paper, const QPageSize& size, QWidget* over,
                     const std::function<void(bool)>& done)
{
    const auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setPageSize(size);
    printer->setDocName(paper.title);
    printer->setCreator(u"Abissora"_s);
    auto* dialog = new QPrintDialog(printer.get(), over);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::WindowModal);
    QObject::connect(dialog, &QDialog::accepted, over, [printer, paper, done] { done(printOn(*printer, paper)); });
    // The dialog works with the printer until it is gone.
    QObject::connect(dialog, &QObject::destroyed, [printer] { Q_UNUSED(printer) });
    dialog->open();
}

} // namespace abissora
