// SPDX-License-Identifier: MIT
#include "AccessKeys.h"

#include "Literals.h"

#include <QAbstractButton>
#include <QPainter>
#include <QShortcut>
#include <QStyle>
#include <QVariant>

namespace abissora {

namespace {

constexpr const char* keyProperty = "abissoraAccessKey";
constexpr const char* shownProperty = "abissoraAccessKeysShown";

QKeySequence sequenceOf(QChar key)
{
    return {Qt::ALT | static_cast<Qt::Key>(key.toUpper().unicode())};
}

} // namespace

void setAccessKey(QAbstractButton& button, QChar key)
{
    button.setProperty(keyProperty, key);
    button.setShortcut(sequenceOf(key));
}

QChar accessKeyOf(const QAbstractButton& button)
{
    return button.property(keyProperty).toChar();
}

QString markedText(const QString& text, QChar key, const QWidget& place)
{
    QString marked = QString(text).replace(u'&', "&&"_L1);
    const bool isShown = !key.isNull() && place.window()->property(shownProperty).toBool();
    const qsizetype letter = isShown ? marked.indexOf(key, 0, Qt::CaseInsensitive) : -1;
    return letter < 0 ? marked : marked.insert(letter, u'&');
}

void setAccessKeysShown(QWidget& window, bool shown)
{
    if (window.property(shownProperty).toBool() == shown)
        return;
    window.setProperty(shownProperty, shown);
    window.update();
}

NameLabel::NameLabel(const QString& text, QWidget* parent)
    : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
}

void NameLabel::setAccessKey(QChar key, QWidget* widget)
{
    m_key = key;
    if (!key.isNull())
        connect(new QShortcut(sequenceOf(key), this), &QShortcut::activated, widget,
                [widget] { widget->setFocus(Qt::ShortcutFocusReason); });
}

void NameLabel::paintEvent(QPaintEvent* event)
{
    if (m_key.isNull() || !window()->property(shownProperty).toBool()) {
        QLabel::paintEvent(event);
        return;
    }
    // With a buddy the label takes an ampersand for a mark.
    const QString plain = buddy() == nullptr ? text() : text().replace("&&"_L1, "&"_L1);
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()) | Qt::TextShowMnemonic, palette(),
                          isEnabled(), markedText(plain, m_key, *this), foregroundRole());
}

} // namespace abissora
