// SPDX-License-Identifier: MIT
#include "DetailSections.h"

#include "ActionRows.h"
#include "Assembly.h"
#include "Buttons.h"
#include "Cards.h"
#include "IconViews.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "Painting.h"
#include "SymbolIcon.h"

#include <QPainter>
#include <QStyle>
#include <QWheelEvent>

namespace abissora {

namespace {

constexpr int tileSide = 56;
constexpr int dotSize = 8;
constexpr int signSide = 22;

/// "SCADUTO" under a warning sign.
class DueBadge final : public QFrame
{
public:
    DueBadge()
    {
        setObjectName(u"dueBadge"_s);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        auto* sign = new IconView(symbolIcon(u"exclamationmark.triangle.fill"_s, NamedColor::red), signSide);
        auto* text = new InkLabel(TextStyle::CaptionSemibold, &Tokens::danger, u"SCADUTO"_s);
        constexpr int margin = metrics::spaceS;
        setLayout(inColumn(metrics::spaceXS / 2, {{sign, 0, Qt::AlignHCenter}, {text, 0, Qt::AlignHCenter}},
                           {margin, margin, margin, margin}));
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        drawPanel(painter, rect(), metrics::controlRadius, Tokens::of(palette()).dangerTint, {});
    }
};

} // namespace

/// "Attivo" or "Inattivo" behind a dot in green or gray.
class StateMark final : public InkLabel
{
public:
    StateMark()
        : InkLabel(TextStyle::Caption, &Tokens::secondaryText)
    {
        constexpr int room = dotSize + metrics::spaceS - 2;
        setObjectName(u"detailState"_s);
        setContentsMargins(isRightToLeft() ? 0 : room, 0, isRightToLeft() ? room : 0, 0);
    }

    void setActive(bool active)
    {
        m_isActive = active;
        setText(active ? u"Attivo"_s : u"Inattivo"_s);
        update();
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        InkLabel::paintEvent(event);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Tokens::of(palette()).named(m_isActive ? NamedColor::green : NamedColor::gray));
        const QRect dot(0, (height() - dotSize) / 2, dotSize, dotSize);
        painter.drawEllipse(QStyle::visualRect(layoutDirection(), rect(), dot));
    }

private:
    bool m_isActive = true;
};

DetailHeader::DetailHeader(QWidget* parent)
    : Card(parent)
    , m_tile(new IconTile(tileSide))
    , m_name(named(new WrapLabel(TextStyle::Headline, &Tokens::text), "detailName"))
    , m_typeName(named(new WrapLabel(TextStyle::Body, &Tokens::secondaryText), "detailType"))
    , m_state(new StateMark)
    , m_badge(new DueBadge)
{
    auto* texts = inColumn(metrics::spaceXS / 2, {Stretch(), m_name, m_typeName, m_state, Stretch()});
    content()->addLayout(inRow(metrics::spaceM, {m_tile, {texts, 1}, m_badge}));
}

void DetailHeader::setContent(const DetailContent& content)
{
    m_tile->setIcon(typeIcon(content.appearance.icon, content.appearance.color), content.appearance.color);
    m_name->setText(content.name);
    m_typeName->setText(content.typeName);
    m_state->setActive(content.isActive);
    m_badge->setVisible(content.isDue);
    setAccessibleName(content.name);
}

TechnicalDetails::TechnicalDetails(QWidget* parent)
    : GroupBox(u"Dettagli Tecnici"_s, u"info.circle"_s, parent)
{
    setObjectName(u"technicalDetails"_s);
    content()->setSpacing(metrics::spaceXS / 2);
    content()->addSpacing(metrics::spaceXS);
}

void TechnicalDetails::setLines(const QList<DetailContent::Line>& lines)
{
    while (m_values.size() < lines.size()) {
        if (!m_values.isEmpty())
            content()->addWidget(new Separator(Separator::Weight::Divider));
        auto* label = new InkLabel(TextStyle::Body, &Tokens::secondaryText, lines.at(m_values.size()).label);
        auto* value = new WrapLabel(TextStyle::Body, &Tokens::text);
        value->setAlignment(Qt::AlignRight | Qt::AlignTop);
        content()->addLayout(
            inRow(metrics::spaceS, {{label, 0, Qt::AlignTop}, {value, 1}}, {0, metrics::spaceXS, 0, metrics::spaceXS}));
        label->setBuddy(value); // the one names the other
        m_values.append(value);
    }
    for (qsizetype i = 0; i < lines.size(); ++i) {
        m_values.at(i)->setText(lines.at(i).value);
        m_values.at(i)->setAccessibleName(u"%1: %2"_s.arg(lines.at(i).label, lines.at(i).value));
    }
}

SelectableText::SelectableText(QWidget* parent)
    : QTextEdit(parent)
{
    setAcceptRichText(false);
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setFrameShape(QFrame::NoFrame);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    viewport()->setAutoFillBackground(false);
    document()->setDocumentMargin(0);
}

void SelectableText::setText(const QString& text)
{
    if (text == toPlainText())
        return;
    setPlainText(text);
    fit();
}

QSize SelectableText::sizeHint() const
{
    return {QTextEdit::sizeHint().width(), height()};
}

QSize SelectableText::minimumSizeHint() const
{
    return {0, height()};
}

void SelectableText::changeEvent(QEvent* event)
{
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fit();
}

void SelectableText::resizeEvent(QResizeEvent* event)
{
    QTextEdit::resizeEvent(event);
    fit();
}

void SelectableText::wheelEvent(QWheelEvent* event)
{
    event->ignore(); // it never scrolls by itself; what it stands in does
}

void SelectableText::fit()
{
    const int frame = 2 * frameWidth();
    document()->setTextWidth(viewport()->width());
    setFixedHeight(qCeil(document()->size().height()) + frame);
}

DetailActions::DetailActions(QWidget* parent)
    : QWidget(parent)
    , m_rows(new ActionRows(metrics::spaceS))
    , m_edit(named(new PlainButton(u"Modifica"_s), "editEquipment"))
    , m_addMaintenance(named(new PrimaryButton(u"Aggiungi Manutenzione"_s), "addMaintenance"))
    , m_toggleActive(named(new LookButton(ButtonLook::Caution), "toggleActive"))
    , m_remove(named(new DestructiveButton(u"Elimina"_s), "deleteEquipment"))
{
    m_edit->setToolTip(u"Modifica l'attrezzatura"_s);
    m_addMaintenance->setToolTip(u"Aggiungi una nuova manutenzione"_s);
    m_remove->setToolTip(u"Elimina l'attrezzatura"_s);

    setLayout(m_rows);
    for (QWidget* button : std::initializer_list<QWidget*>{m_edit, m_addMaintenance, m_toggleActive, m_remove})
        m_rows->addWidget(button);
    setActive(true);
    showPictures(true);

    connect(m_edit, &QAbstractButton::clicked, this, &DetailActions::editClicked);
    connect(m_addMaintenance, &QAbstractButton::clicked, this, &DetailActions::addMaintenanceClicked);
    connect(m_toggleActive, &QAbstractButton::clicked, this, &DetailActions::toggleActiveClicked);
    connect(m_remove, &QAbstractButton::clicked, this, &DetailActions::deleteClicked);
}

void DetailActions::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    fitPictures();
}

bool DetailActions::event(QEvent* event)
{
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::ApplicationFontChange)
        showPictures(true); // until they turn out to have no room
    if (event->type() == QEvent::LayoutRequest)
        fitPictures();
    return handled;
}

void DetailActions::showPictures(bool shown)
{
    m_hasPictures = shown;
    m_edit->setIcon({});
    m_addMaintenance->setIcon({});
    if (!shown)
        return;
    m_edit->setSymbol(u"pencil"_s);
    m_addMaintenance->setSymbol(u"wrench.fill"_s);
}

void DetailActions::fitPictures()
{
    if (m_hasPictures)
        m_widthWithPictures = m_rows->widthOf(2);
    const bool fits = m_widthWithPictures <= width();
    if (fits != m_hasPictures)
        showPictures(fits);
}

void DetailActions::focusAddMaintenance()
{
    m_addMaintenance->setFocus(Qt::OtherFocusReason);
}

void DetailActions::setActive(bool active)
{
    m_toggleActive->setText(active ? u"Disattiva"_s : u"Attiva"_s);
    m_toggleActive->setToolTip(active ? u"Disattiva l'attrezzatura"_s : u"Attiva l'attrezzatura"_s);
    setButtonLook(*m_toggleActive, active ? ButtonLook::Caution : ButtonLook::Positive);
}

} // namespace abissora
