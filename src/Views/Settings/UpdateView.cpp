// SPDX-License-Identifier: MIT
#include "UpdateView.h"

#include "Accessibility.h"
#include "Assembly.h"
#include "Buttons.h"
#include "Cards.h"
#include "IconViews.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "Opener.h"
#include "Painting.h"
#include "SymbolIcon.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <QPointer>
#include <QShortcut>
#include <QTextBlock>
#include <QTextLayout>

namespace abissora {

namespace {

constexpr int updateWidth = 480;
constexpr int updateIconSide = 52;
constexpr int fewestLines = 3;
constexpr int mostLines = 12;
constexpr int longestMeasured = 4'000; ///< characters of a paragraph; more fill the lines anyway
constexpr int widthInCharacters = 60;

/// Plain text to read, select and copy. As high as the text needs at the width it has, within bounds beyond which it
/// scrolls.
class ReleaseNotes final : public QPlainTextEdit
{
public:
    explicit ReleaseNotes(const QString& text);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

ReleaseNotes::ReleaseNotes(const QString& text)
{
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setFrameShape(QFrame::NoFrame);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setPlainText(text);
}

QSize ReleaseNotes::sizeHint() const
{
    const int width = fontMetrics().averageCharWidth() * widthInCharacters;
    return {width, heightForWidth(width)};
}

QSize ReleaseNotes::minimumSizeHint() const
{
    const int lines = fewestLines * fontMetrics().lineSpacing();
    return {fontMetrics().averageCharWidth() * 20, lines + qCeil(2 * document()->documentMargin())};
}

int ReleaseNotes::heightForWidth(int width) const
{
    qreal height = 0;
    int lines = 0;
    for (QTextBlock block = document()->begin(); block.isValid() && lines < mostLines; block = block.next()) {
        QTextLayout layout(block.text().left(longestMeasured), font());
        QTextOption option;
        option.setWrapMode(wordWrapMode());
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid() && lines < mostLines; line = layout.createLine()) {
            line.setLineWidth(width - 2 * document()->documentMargin());
            height += line.height();
            ++lines;
        }
        layout.endLayout();
    }
    return std::max(minimumSizeHint().height(), qCeil(height + 2 * document()->documentMargin()) + 1);
}

void ReleaseNotes::paintEvent(QPaintEvent* event)
{
    QPlainTextEdit::paintEvent(event);
    drawFocusRing(*this);
}

} // namespace

UpdateView::UpdateView(const UpdateInfo& update, const QUrl& website, Opener& opener, QWidget* parent)
    : QWidget(parent)
    , m_offer(UpdateOffer::of(update, website))
    , m_opener(opener)
    , m_download(new PrimaryButton(u"Scarica la nuova versione"_s, u"arrow.down.circle"_s))
{
    setObjectName(u"updateView"_s);
    auto* title = new InkLabel(TextStyle::Title, &Tokens::text, u"Aggiornamento disponibile"_s);
    auto* version = named(new WrapLabel(TextStyle::Body, &Tokens::secondaryText, m_offer.version), u"newVersion");
    version->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    auto* later = named(new PlainButton(u"Più tardi"_s), u"later");
    m_download->setObjectName(u"download"_s);
    connect(later, &QAbstractButton::clicked, this, &UpdateView::closeRequested);
    connect(m_download, &QAbstractButton::clicked, this, &UpdateView::download);
    auto* escape = new QShortcut(QKeySequence::Cancel, this);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, this, &UpdateView::closeRequested);

    m_download->setAccessibleDescription(u"Apre "_s + m_offer.host);
    auto* host = named(new ElidedLabel(TextStyle::Caption, &Tokens::secondaryText), u"downloadHost");
    host->setText(m_offer.host);
    m_failure = makeFailure();

    auto* icon = new IconView(symbolIcon(u"arrow.down.circle.fill"_s, NamedColor::blue), updateIconSide);
    setLayout(inColumn(metrics::spaceS,
                       {{icon, 0, Qt::AlignHCenter},
                        {title, 0, Qt::AlignHCenter},
                        version,
                        Gap{metrics::spaceS},
                        {makeNotes(), 1},
                        Gap{metrics::spaceS},
                        m_failure,
                        inRow(metrics::spaceM, {Stretch(), later, m_download}),
                        {host, 0, Qt::AlignRight}},
                       {metrics::spaceXL, metrics::spaceXL, metrics::spaceXL, metrics::spaceL}));
    setMinimumWidth(withText(updateWidth, fontMetrics()));
}

void UpdateView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    setFocus();
}

GroupBox* UpdateView::makeNotes()
{
    const QString title = u"Novità in questa versione"_s;
    auto* notes = named(new ReleaseNotes(m_offer.notes), u"releaseNotes");
    notes->setAccessibleName(title);
    setFocusProxy(notes);
    auto* box = new GroupBox(title, u"sparkles"_s);
    box->content()->addWidget(notes, 1);
    return box;
}

QWidget* UpdateView::makeFailure()
{
    auto* text = named(new WrapLabel(TextStyle::Body, &Tokens::danger, m_offer.unopened), u"unopened");
    auto* copy = named(new PlainButton(u"Copia indirizzo"_s), u"copyAddress");
    connect(copy, &QAbstractButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(m_offer.page.toString(QUrl::FullyEncoded)); });
    auto* failure = new QWidget;
    failure->setLayout(inColumn(metrics::spaceS, {text, inRow(0, {copy, Stretch()}), Gap{metrics::spaceS}}));
    failure->hide();
    return failure;
}

QCoro::Task<> UpdateView::download()
{
    if (std::exchange(m_isOpening, true))
        co_return;
    const QPointer<UpdateView> alive(this);
    m_failure->hide();
    const bool isOpened = co_await m_opener.open(m_offer.page);
    if (!alive)
        co_return;
    m_isOpening = false;
    if (isOpened) {
        Q_EMIT closeRequested();
        co_return;
    }
    m_failure->show();
    announce(*this, m_offer.unopened);
}

} // namespace abissora
