// SPDX-License-Identifier: MIT
#pragma once

#include "Almanac.h"
#include "Equipment.h"
#include "LongWork.h"
#include "PageLayout.h"
#include "PaperSize.h"

#include <QWidget>

namespace abissora {

class ElidedLabel;
class EquipmentTypeViewModel;
class EquipmentViewModel;
class FilePanel;
class PagePreview;
class PlainButton;
class PrimaryButton;
class SegmentedControl;
class ViewSheet;
class WrapLabel;

/// What is printed, on what paper, and how the pages will look; out of it come a PDF or printed pages.
class PrintView : public QWidget
{
    Q_OBJECT

public:
    /// Hands a paper to a printer, asking the person over a window; the function hears how it went.
    using Print = std::function<void(const PrintedPaper& paper, const QPageSize& size, QWidget* over,
                                     const std::function<void(bool)>& done)>;
    struct Sources
    {
        const EquipmentViewModel& equipment;
        const EquipmentTypeViewModel& types;
        Almanac almanac;
        FilePanel& filePanel;
        LongWork& work;
        Print print;
    };

    /// What the sources refer to must outlive it. `item` can be printed beside the lists and is chosen at first.
    PrintView(Sources sources, std::optional<Equipment> item, QWidget* parent = nullptr);
    ~PrintView() override;

    /// In a sheet titled "Stampa" over the window of `over`.
    [[nodiscard]] static ViewSheet* makeSheet(const Sources& sources, const std::optional<Equipment>& item,
                                              QWidget* over);

Q_SIGNALS:
    /// The person wants no more of it, or has what she wanted.
    void closed();

private:
    enum What { List, Due, Item };

    [[nodiscard]] QLayout* makeBody();
    [[nodiscard]] QLayout* makeFooter();
    [[nodiscard]] PrintedPaper chosenPaper() const;
    [[nodiscard]] QPageSize chosenSize() const;
    void layOut();
    QCoro::Task<> layOutElsewhere(PrintedPaper paper);
    void showPages(const std::optional<PageLayout>& layout);
    QCoro::Task<> savePdf();
    void print();

    Sources m_sources;
    std::optional<Equipment> m_item;
    std::optional<PageLayout> m_layout; ///< nothing while it is made
    std::shared_ptr<WorkProgress> m_progress;
    SegmentedControl* m_what;
    SegmentedControl* m_size;
    ElidedLabel* m_title;
    WrapLabel* m_count;
    PagePreview* m_preview;
    WrapLabel* m_error;
    PlainButton* m_cancel;
    PlainButton* m_save;
    PrimaryButton* m_print;
};

} // namespace abissora
