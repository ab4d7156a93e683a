// SPDX-License-Identifier: MIT
#include "HelpPageAccessible.h"

#include "HelpPage.h"
#include "Literals.h"

#include <QPointer>
#include <QTextBlock>

namespace abissora {

namespace {

/// A stretch of the text that leads somewhere.
struct Link
{
    int start;
    QString text;
    QString address;
};

QList<Link> linksOf(const QTextDocument& document)
{
    QList<Link> links;
    int end = -1;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
            const QTextFragment fragment = piece.fragment();
            if (!fragment.charFormat().isAnchor())
                continue;
            const QString address = fragment.charFormat().anchorHref();
            if (fragment.position() == end && links.last().address == address)
                links.last().text += fragment.text();
            else
                links.append({fragment.position(), fragment.text(), address});
            end = fragment.position() + fragment.length();
        }
    }
    return links;
}

class LinkAccessible final : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    LinkAccessible(HelpPage& page, Link link)
        : m_page(&page)
        , m_link(std::move(link))
    {}

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }
    [[nodiscard]] bool isValid() const override { return !m_page.isNull(); }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Link; }
    [[nodiscard]] QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(m_page.data());
    }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name)
            return m_link.text;
        return kind == QAccessible::Description ? m_link.address : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    [[nodiscard]] QRect rect() const override
    {
        const auto* const text = parent()->textInterface();
        return text->characterRect(m_link.start) |
               text->characterRect(m_link.start + static_cast<int>(m_link.text.size()) - 1);
    }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state;
        const QTextCursor caret = m_page->textCursor();
        state.linked = true;
        state.focusable = true;
        state.focused = m_page->hasFocus() && caret.selectionStart() == m_link.start && caret.hasSelection();
        state.invisible = !m_page->isVisible();
        return state;
    }

    [[nodiscard]] QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& name) override
    {
        if (name == pressAction()) {
            Q_EMIT m_page->anchorClicked(QUrl(m_link.address));
        } else if (name == setFocusAction()) {
            m_page->setFocus(Qt::OtherFocusReason);
            parent()->textInterface()->setSelection(0, m_link.start,
                                                    m_link.start + static_cast<int>(m_link.text.size()));
        }
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QPointer<HelpPage> m_page;
    Link m_link;
};

} // namespace

HelpPageAccessible::HelpPageAccessible(QWidget* page)
    : QAccessibleWidget(page, QAccessible::Document)
{}

HelpPageAccessible::~HelpPageAccessible()
{
    forgetLinks();
}

HelpPage& HelpPageAccessible::page() const
{
    return *static_cast<HelpPage*>(object());
}

void* HelpPageAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessible::State HelpPageAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    state.multiLine = true;
    state.selectableText = true;
    return state;
}

int HelpPageAccessible::childCount() const
{
    findLinks();
    return static_cast<int>(m_links.size());
}

QAccessibleInterface* HelpPageAccessible::child(int index) const
{
    findLinks();
    return index >= 0 && index < m_links.size() ? QAccessible::accessibleInterface(m_links.at(index)) : nullptr;
}

int HelpPageAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    findLinks();
    for (int i = 0; i < m_links.size(); ++i) {
        if (QAccessible::accessibleInterface(m_links.at(i)) == child)
            return i;
    }
    return -1;
}

QAccessibleInterface* HelpPageAccessible::childAt(int x, int y) const
{
    for (int i = 0; i < childCount(); ++i) {
        if (child(i)->rect().contains(x, y))
            return child(i);
    }
    return nullptr;
}

void HelpPageAccessible::findLinks() const
{
    if (m_revision == page().document()->revision())
        return;
    forgetLinks();
    m_revision = page().document()->revision();
    for (const Link& link : linksOf(*page().document()))
        m_links.append(QAccessible::registerAccessibleInterface(new LinkAccessible(page(), link)));
}

void HelpPageAccessible::forgetLinks() const
{
    for (const QAccessible::Id link : std::exchange(m_links, {}))
        QAccessible::deleteAccessibleInterface(link);
}

QTextCursor HelpPageAccessible::cursorAt(int position) const
{
    QTextCursor cursor(page().document());
    cursor.setPosition(std::clamp(position, 0, characterCount()));
    return cursor;
}

void HelpPageAccessible::selection(int index, int* start, int* end) const
{
    const QTextCursor cursor = page().textCursor();
    const bool isThere = index == 0 && cursor.hasSelection();
    *start = isThere ? cursor.selectionStart() : 0;
    *end = isThere ? cursor.selectionEnd() : 0;
}

int HelpPageAccessible::selectionCount() const
{
    return page().textCursor().hasSelection() ? 1 : 0;
}

void HelpPageAccessible::removeSelection(int index)
{
    if (index == 0)
        setCursorPosition(cursorPosition());
}

void HelpPageAccessible::setSelection(int index, int start, int end)
{
    if (index != 0)
        return;
    QTextCursor cursor = cursorAt(start);
    cursor.setPosition(cursorAt(end).position(), QTextCursor::KeepAnchor);
    page().setTextCursor(cursor);
}

int HelpPageAccessible::cursorPosition() const
{
    return page().textCursor().position();
}

QString HelpPageAccessible::text(int start, int end) const
{
    const QString whole = page().toPlainText();
    return whole.mid(start, (end < 0 ? static_cast<int>(whole.size()) : end) - start);
}

int HelpPageAccessible::characterCount() const
{
    return page().document()->characterCount() - 1; // the last ends the document
}

QRect HelpPageAccessible::characterRect(int offset) const
{
    const QRect before = page().cursorRect(cursorAt(offset));
    const QRect after = page().cursorRect(cursorAt(offset + 1));
    QRect place = before;
    if (after.top() == before.top() && after.left() > before.left())
        place.setRight(after.left() - 1);
    return place.translated(page().viewport()->mapToGlobal(QPoint()));
}

int HelpPageAccessible::offsetAtPoint(const QPoint& point) const
{
    return page().cursorForPosition(page().viewport()->mapFromGlobal(point)).position();
}

void HelpPageAccessible::scrollToSubstring(int start, int /*end*/)
{
    page().bringIntoView(cursorAt(start));
}

QString HelpPageAccessible::attributes(int offset, int* start, int* end) const
{
    QTextCursor cursor = cursorAt(offset);
    *start = *end = offset;
    for (auto piece = cursor.block().begin(); !piece.atEnd(); ++piece) {
        const QTextFragment fragment = piece.fragment();
        if (!fragment.contains(offset))
            continue;
        *start = fragment.position();
        *end = fragment.position() + fragment.length();
        const QFont font = fragment.charFormat().font();
        return u"font-weight:%1;font-style:%2;"_s.arg(font.bold() ? u"bold"_s : u"normal"_s,
                                                      font.italic() ? u"italic"_s : u"normal"_s);
    }
    return {};
}

} // namespace abissora
