#pragma once

#include "core/PageRangeCheck.h"

#include <functional>

class LinkLabel;
class OptionButton;
class PageFrame;
class QLineEdit;
class QWidget;
class Refusals;

/// The choice between all pages and a list of pages, as two pages of the wizards have it: two option buttons with their
/// labels and the box for the list, its key filter, and the check of the list.
class PageListChoice {
public:
    /// Makes the controls and adds them to a page.
    void addTo(PageFrame& frame);

    /// What the page does when an option turns on. Requires: this choice lives as long as its controls.
    void connectHandlers(std::function<void()> chkAllPages_Click, std::function<void()> chkFromTo_Click);

    OptionButton* chkAllPages = nullptr;
    OptionButton* chkFromTo = nullptr;
    LinkLabel* lblAllPages = nullptr; ///< a click selects its option, and runs its logic once more if it was on already
    LinkLabel* lblFrom = nullptr;     ///< likewise
    QLineEdit* txtFrom = nullptr;

    /// Whether the list may be used; a refusal is shown, and the box gets the state that belongs to it. All pages pass
    /// with any text in the box.
    bool ValidatePageRange(PageRangeRules rules, Refusals& refusals) const;

private:
    void lblAllPages_Click() const;
    void lblFrom_Click() const;

    std::function<void()> m_chkAllPages_Click;
    std::function<void()> m_chkFromTo_Click;
};
