#include "core/Banner.h"

#include "core/RunViews.h"
#include "services/ErrorTrap.h"

namespace run {

void awaitSource(MainView& mainWindow, const ErrorTrap& trap) {
    trap([&] { mainWindow.enableButton(MainView::Button::cmdBrowse); });
    trap([&] { mainWindow.showBanner(MainView::Banner::lblPlzBrowse); });
}

void announceBatch(MainView& mainWindow, const ErrorTrap& trap) {
    trap([&] { mainWindow.disableButton(MainView::Button::cmdBrowse); });
    trap([&] { mainWindow.showBanner(MainView::Banner::lblBatchInProcess); });
}

} // namespace run
