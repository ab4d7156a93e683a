// SPDX-License-Identifier: MIT
#pragma once

#include "HelpLoader.h"

#include <QTextBrowser>
#include <optional>

namespace abissora {

class Opener;

/// One section of the guide as one document: it scrolls, and its text can be selected across all of its blocks. Links
/// lead to the browser, and nothing is ever loaded from anywhere.
class HelpPage : public QTextBrowser
{
    Q_OBJECT

public:
    /// `opener` outlives the page.
    explicit HelpPage(Opener& opener, QWidget* parent = nullptr);

    /// Shows it from its top; the section that is shown already stays where it is.
    void setSection(const HelpSection& section);
    /// Marks the text wherever it stands on the page, whatever the letter case, and brings the first place into view.
    void setSearchText(const QString& text);
    /// Puts the caret there; at the top when the page does not have the text.
    void goToFirstMatch();
    void bringIntoView(const QTextCursor& place);

    /// Nothing, whatever is asked for.
    QVariant loadResource(int type, const QUrl& name) override;

protected:
    QMimeData* createMimeDataFromSelection() const override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void write();
    void rewrite();
    void limitLines();
    void turnPage(const QKeyEvent& space);
    void markMatches();
    void showFirstMatch();

    QString m_searchText;
    std::optional<HelpSection> m_section;
};

} // namespace abissora
