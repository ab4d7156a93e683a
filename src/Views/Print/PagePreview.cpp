// SPDX-License-Identifier: MIT
#include "PagePreview.h"

#include "Accessibility.h"
#include "Assembly.h"
#include "Buttons.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "Painting.h"
#include "PaperLook.h"
#include "PaperTokens.h"
#include "SymbolIcon.h"

#include <QKeyEvent>
#include <QPainter>

namespace abissora {

namespace {

constexpr QSize usualSize(380, 470);
constexpr QSize leastSize(160, 200);
constexpr int ground = 10;      ///< left free around the page, for the focus
constexpr int wheelNotch = 120; ///< eighths of a degree
constexpr qsizetype toTheEnd = 1'000'000'000;

} // namespace

PageCanvas::PageCanvas(QWidget* parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleRole(*this, QAccessible::Graphic);
}

void PageCanvas::setPage(const PageLayout* layout, qsizetype page)
{
    m_layout = layout;
    m_page = page;
    update();
}

QSize PageCanvas::sizeHint() const
{
    return usualSize;
}

QSize PageCanvas::minimumSizeHint() const
{
    return leastSize;
}

QRect PageCanvas::pageRect() const
{
    if (m_layout == nullptr)
        return {};
    const QRect room = rect().adjusted(ground, ground, -ground, -ground);
    QRect page(QPoint(), m_layout->pageSize().scaled(room.size(), Qt::KeepAspectRatio).toSize());
    page.moveCenter(room.center());
    return page;
}

void PageCanvas::paintEvent(QPaintEvent* /*event*/)
{
    if (m_layout == nullptr)
        return;
    const PaperTokens paper;
    const QRect page = pageRect();
    QPainter painter(this);
    painter.fillRect(page.adjusted(-1, -1, 1, 1), paper.edge);
    painter.fillRect(page, paper.ground);
    PagePainter::paint(painter, page, *m_layout, m_page, paperInk());
    if (hasFocus())
        drawFocusRing(painter, QRectF(page).adjusted(-5, -5, 5, 5), metrics::spaceXS, palette());
}

void PageCanvas::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_PageDown:
    case Qt::Key_Down:
    case Qt::Key_Right:
    case Qt::Key_Space:
        Q_EMIT turned(1);
        break;
    case Qt::Key_PageUp:
    case Qt::Key_Up:
    case Qt::Key_Left:
        Q_EMIT turned(-1);
        break;
    case Qt::Key_Home:
        Q_EMIT turned(-toTheEnd);
        break;
    case Qt::Key_End:
        Q_EMIT turned(toTheEnd);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void PageCanvas::wheelEvent(QWheelEvent* event)
{
    m_wheel += event->angleDelta().y();
    if (const int notches = m_wheel / wheelNotch; notches != 0) {
        m_wheel -= notches * wheelNotch;
        Q_EMIT turned(-notches);
    }
    event->accept();
}

PagePreview::PagePreview(QWidget* parent)
    : QWidget(parent)
    , m_canvas(named(new PageCanvas, u"page"))
    , m_back(named(new IconButton(symbolIcon(u"chevron.left"_s), u"Pagina precedente"_s), u"pageBack"))
    , m_number(named(new InkLabel(TextStyle::Callout, &Tokens::secondaryText), u"pageNumber"))
    , m_on(named(new IconButton(symbolIcon(u"chevron.right"_s), u"Pagina successiva"_s), u"pageOn"))
{
    setLayout(inColumn(metrics::spaceXS,
                       {{m_canvas, 1}, inRow(metrics::spaceS, {Stretch{1}, m_back, m_number, m_on, Stretch{1}})}));
    connect(m_canvas, &PageCanvas::turned, this, &PagePreview::turn);
    connect(m_back, &QAbstractButton::clicked, this, [this] { turn(-1); });
    connect(m_on, &QAbstractButton::clicked, this, [this] { turn(1); });
    setLayoutOfPages(std::nullopt);
}

void PagePreview::setLayoutOfPages(const std::optional<PageLayout>& layout)
{
    m_layout = layout;
    show(0);
}

void PagePreview::turn(qsizetype pages)
{
    if (!m_layout)
        return;
    const qsizetype page = std::clamp<qsizetype>(m_page + pages, 0, m_layout->pages().size() - 1);
    if (page == m_page)
        return;
    // A button that cannot go on would leave the keyboard nowhere.
    const bool endsAtButton =
        (page == 0 && m_back->hasFocus()) || (page + 1 == m_layout->pages().size() && m_on->hasFocus());
    if (endsAtButton)
        m_canvas->setFocus(Qt::OtherFocusReason);
    show(page);
    announce(*m_canvas, m_number->text());
}

void PagePreview::show(qsizetype page)
{
    m_page = page;
    m_canvas->setPage(m_layout ? &*m_layout : nullptr, page);
    const QString number = m_layout ? PagePainter::numberText(*m_layout, page) : QString();
    m_number->setText(number);
    m_canvas->setAccessibleName(m_layout ? u"Anteprima: %1, %2"_s.arg(m_layout->paper().title, number)
                                         : u"Anteprima"_s);
    m_back->setEnabled(m_layout && page > 0);
    m_on->setEnabled(m_layout && page + 1 < m_layout->pages().size());
}

} // namespace abissora
