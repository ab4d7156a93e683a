// SPDX-License-Identifier: MIT
#pragma once

#include <QStringListModel>
#include <QWidget>
#include <optional>

class QLabel;
class QListView;
class QStackedWidget;

namespace abissora {

class HelpIndex;
class SearchField;

/// The guide's sections under a search field.
class HelpIndexView : public QWidget
{
    Q_OBJECT

public:
    /// `index` outlives the view, which changes its search and its selection as the person does.
    explicit HelpIndexView(HelpIndex& index, QWidget* parent = nullptr);

    void focusSearch();

Q_SIGNALS:
    void selectionChanged();
    /// The person wants to read what the search found first.
    void readingRequested();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void buildList();
    [[nodiscard]] QWidget* makeNoResult();
    void search(const QString& text);
    void selectRow();
    /// False when there is none.
    bool selectFirst();
    void showSections();

    HelpIndex& m_index;
    SearchField* m_search;
    QStringListModel m_titles;
    QListView* m_list;
    QLabel* m_noResult;
    QStackedWidget* m_pages;
};

} // namespace abissora
