// SPDX-License-Identifier: MIT
#include "TitlelessWindow.h"

#include "Buttons.h"
#include "CloseShortcut.h"
#include "Literals.h"
#include "Metrics.h"
#include "Painting.h"
#include "SymbolIcon.h"
#include "Tokens.h"
#include "WindowShape.h"

#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <QWindow>

namespace abissora {

TitlelessWindow::TitlelessWindow(const QString& title, QWidget* content)
    : QDialog(nullptr, Qt::Window | Qt::FramelessWindowHint)
{
    setWindowTitle(title);
    setAttribute(Qt::WA_DeleteOnClose);
    if (windowsCanBeTranslucent())
        setAttribute(Qt::WA_TranslucentBackground);

    auto* close = new IconButton(symbolIcon(u"xmark"_s), u"Chiudi"_s);
    close->setObjectName(u"closeWindow"_s);
    connect(close, &QAbstractButton::clicked, this, &QWidget::close);
    closeByKeyboard(*this);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(metrics::spaceXS, metrics::spaceXS, metrics::spaceXS, metrics::spaceXS);
    layout->setSpacing(0);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(content, 1);
    layout->insertWidget(0, close, 0, Qt::AlignRight);
    setTabOrder(content, close);
}

void TitlelessWindow::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && windowHandle() != nullptr)
        windowHandle()->startSystemMove();
    QDialog::mousePressEvent(event);
}

void TitlelessWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const Tokens& tokens = Tokens::of(palette());
    drawPanel(painter, rect(), metrics::sheetRadius, tokens.window, tokens.border);
}

void TitlelessWindow::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    if (!windowsCanBeTranslucent())
        setMask(roundedRegion(rect(), metrics::sheetRadius));
}

} // namespace abissora
