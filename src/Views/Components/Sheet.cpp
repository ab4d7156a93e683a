// SPDX-License-Identifier: MIT
#include "Sheet.h"

#include "AccessKeys.h"
#include "Assembly.h"
#include "Buttons.h"
#include "Cards.h"
#include "Literals.h"
#include "Metrics.h"
#include "ScrollPane.h"
#include "TypeScale.h"

#include <QGridLayout>
#include <QLabel>
#include <QShortcut>
#include <QStyle>

namespace abissora {

namespace {

constexpr int formWidth = 560;
constexpr int sideMargin = 18;

} // namespace

Sheet::Sheet(const QString& title, QWidget* parent)
    : SheetWindow(parent)
    , m_title(new QLabel)
    , m_cancel(named(new PlainButton(u"Annulla"_s), u"cancel"_s))
    , m_primary(named(new PrimaryButton({}), u"primary"_s))
    , m_scroll(new ScrollPane)
    , m_body(new QVBoxLayout(m_scroll->widget()))
    , m_footLines(inColumn(metrics::spaceXS, {}, {sideMargin, metrics::spaceS, sideMargin, metrics::spaceM}))
    , m_foot(makeFoot())
{
    setTitle(title);
    setAccessKey(*m_cancel, u'A');
    m_primary->hide();

    // The scroll bar has its room in the margin from the start, so that nothing moves when it comes or goes.
    m_scroll->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    const int besideBar = std::max(0, sideMargin - style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    m_body->setContentsMargins(sideMargin, metrics::spaceL, besideBar, metrics::spaceL);
    m_body->setSpacing(metrics::spaceL - 2);

    setLayout(inColumn(0, {makeHeader(), new Separator, {m_scroll, 1}, m_foot}, {1, 1, 1, 1}));

    connect(m_cancel, &QAbstractButton::clicked, this, &QDialog::reject);
    connect(m_primary, &QAbstractButton::clicked, this, &Sheet::primaryClicked);
    for (const int key : {Qt::Key_Return, Qt::Key_Enter})
        connect(new QShortcut(QKeySequence(Qt::CTRL | key), this), &QShortcut::activated, this, &Sheet::pressPrimary);
}

QWidget* Sheet::makeHeader()
{
    m_title->setFont(abissora::font(TextStyle::Headline));
    m_title->setTextFormat(Qt::PlainText);
    auto* header = new QWidget;
    auto* layout = new QGridLayout(header);
    layout->setContentsMargins(sideMargin, metrics::spaceM + 2, sideMargin, metrics::spaceM + 2);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(2, 1);
    layout->addWidget(m_cancel, 0, 0, Qt::AlignLeft);
    layout->addWidget(m_title, 0, 1, Qt::AlignCenter);
    layout->addWidget(m_primary, 0, 2, Qt::AlignRight);
    return header;
}

QWidget* Sheet::makeFoot()
{
    auto* foot = new QWidget;
    foot->setLayout(inColumn(0, {new Separator, m_footLines}));
    foot->hide();
    return foot;
}

void Sheet::addToFoot(QWidget* line)
{
    m_footLines->addWidget(line);
    m_foot->show();
}

void Sheet::setTitle(const QString& title)
{
    setWindowTitle(title);
    m_title->setText(title);
}

void Sheet::setPrimaryText(const QString& text, QChar accessKey)
{
    m_primary->setText(text);
    if (!accessKey.isNull())
        setAccessKey(*m_primary, accessKey);
    m_primary->setVisible(!text.isEmpty());
}

void Sheet::setContent(QWidget* content)
{
    m_scroll->hide();
    delete m_content;
    m_content = content;
    static_cast<QVBoxLayout*>(layout())->addWidget(content, 1);
}

void Sheet::setPreferredSize(QSize size)
{
    m_preferred = size;
}

void Sheet::setFirstField(QWidget* field)
{
    m_firstField = field;
}

void Sheet::pressPrimary()
{
    if (m_primary->isVisible())
        m_primary->click();
}

void Sheet::goTo(QWidget* field)
{
    field->setFocus(Qt::TabFocusReason);
    m_scroll->bringIntoSight(*field);
}

QSize Sheet::preferredSize() const
{
    if (m_preferred.isValid())
        return m_preferred;
    const QSize content = m_content != nullptr ? m_content->sizeHint() : m_scroll->widget()->sizeHint();
    const int foot = m_foot->isVisibleTo(this) ? m_foot->sizeHint().height() : 0;
    const int around = m_cancel->parentWidget()->sizeHint().height() + 3 + foot;
    const int width = std::max(withText(formWidth, fontMetrics()), content.width() + 2);
    const QWidget* const body = m_scroll->widget();
    const int height =
        m_content == nullptr && body->hasHeightForWidth() ? body->heightForWidth(width) : content.height();
    return {width, around + height};
}

QWidget* Sheet::firstFocus() const
{
    if (m_firstField)
        return m_firstField;
    const QWidget* const inside = m_content != nullptr ? m_content : m_scroll->widget();
    for (QWidget* next = inside->nextInFocusChain(); next != inside; next = next->nextInFocusChain()) {
        const bool takesFocus = (next->focusPolicy() & Qt::TabFocus) && next->isEnabled() && next->isVisibleTo(this);
        if (takesFocus && inside->isAncestorOf(next))
            return next;
    }
    return m_cancel;
}

} // namespace abissora
