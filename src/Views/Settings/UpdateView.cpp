// SPDX-License-Identifier: MIT
#include "UpdateView.h"

#include "Buttons.h"
#include "ForeignText.h"
#include "GroupBox.h"
#include "IconView.h"
#include "Literals.h"
#include "Metrics.h"
#include "Opening.h"
#include "ReleaseNotes.h"
#include "SymbolIcon.h"
#include "WrapLabel.h"

#include <QHBoxLayout>
#include <QPointer>
#include <QShortcut>

namespace abissora {

namespace {

constexpr int contentWidth = 480;
constexpr int iconSide = 52;
constexpr qsizetype longestNotes = 100'000;

/// Any other scheme may start any program on this machine.
bool opensInBrowser(const QUrl& url)
{
    const bool isWeb = url.scheme() == "https"_L1 || url.scheme() == "http"_L1;
    return isWeb && !url.host().isEmpty();
}

} // namespace

UpdateView::UpdateView(const UpdateInfo& update, const QUrl& website, Opener& opener, QWidget* parent)
    : QWidget(parent)
    , m_update(update)
    , m_opener(opener)
    , m_address(opensInBrowser(update.downloadURL) ? update.downloadURL : website)
    , m_download(new PrimaryButton(u"Scarica la nuova versione"_s))
{
    setObjectName(u"updateView"_s);
    auto* title = new InkLabel(TextStyle::Title, &Tokens::text, u"Aggiornamento disponibile"_s);
    auto* version =
        new WrapLabel(TextStyle::Body, &Tokens::secondaryText, u"Nuova versione · "_s + shownRelease(update));
    version->setObjectName(u"newVersion"_s);
    version->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    auto* later = new PlainButton(u"Più tardi"_s);
    later->setObjectName(u"later"_s);
    m_download->setObjectName(u"download"_s);
    m_download->setSymbol(u"arrow.down.circle"_s);
    connect(later, &QAbstractButton::clicked, this, &UpdateView::closeRequested);
    connect(m_download, &QAbstractButton::clicked, this, &UpdateView::download);
    auto* escape = new QShortcut(QKeySequence::Cancel, this);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, this, &UpdateView::closeRequested);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(metrics::spaceM);
    buttons->addStretch();
    buttons->addWidget(later);
    buttons->addWidget(m_download);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(metrics::spaceXL, metrics::spaceXL, metrics::spaceXL, metrics::spaceL);
    layout->setSpacing(metrics::spaceS);
    layout->addWidget(new IconView(symbolIcon(u"arrow.down.circle.fill"_s, NamedColor::blue), iconSide), 0,
                      Qt::AlignHCenter);
    layout->addWidget(title, 0, Qt::AlignHCenter);
    layout->addWidget(version);
    layout->addSpacing(metrics::spaceS);
    layout->addWidget(makeNotes(), 1);
    layout->addSpacing(metrics::spaceS);
    layout->addLayout(buttons);
    setMinimumWidth(withText(contentWidth, fontMetrics()));
    setFocusProxy(m_download);
}

void UpdateView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    setFocus();
}

GroupBox* UpdateView::makeNotes() const
{
    const QString title = u"Novità in questa versione"_s;
    QString text = shownText(m_update.releaseNotes.value_or(QString()), longestNotes);
    if (text.trimmed().isEmpty())
        text = u"Consulta il sito dell'applicazione per i dettagli del rilascio."_s;
    auto* notes = new ReleaseNotes(text);
    notes->setObjectName(u"releaseNotes"_s);
    notes->setAccessibleName(title);
    auto* box = new GroupBox(title, u"sparkles"_s);
    box->content()->addWidget(notes, 1);
    return box;
}

QCoro::Task<> UpdateView::download()
{
    const QPointer<UpdateView> alive(this);
    if (co_await openPage(m_address, m_opener, *this) && alive)
        Q_EMIT closeRequested();
}

} // namespace abissora
