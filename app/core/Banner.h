#pragma once

class ErrorTrap;
class MainView;

namespace run {

/// The main window asks for a file: cmdBrowse enabled, lblPlzBrowse shown in place of lblBatchInProcess.
void awaitSource(MainView& mainWindow, const ErrorTrap& trap);

/// The main window says that a batch is in hand: cmdBrowse disabled, lblBatchInProcess shown in place of lblPlzBrowse.
void announceBatch(MainView& mainWindow, const ErrorTrap& trap);

} // namespace run
