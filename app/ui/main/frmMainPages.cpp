#include "core/PageRangeCheck.h"
#include "ui/main/frmMain.h"
#include "ui_frmMain.h"

bool frmMain::ValidatePageRange() {
    if (m_ui->chkAllPages->value())
        return true;
    const PageRangeVerdict verdict = checkPageRange(m_ui->txtFrom->text(), PageRangeRules::MainWindow);
    switch (verdict.fault) {
    case PageRangeFault::None:
        return true;
    case PageRangeFault::BelowOne:
        m_ports.messageBox.tell(UserMessages::Icon::Information, "Page range must be a number greater than zero",
                                "Tavrelion - PDF to Word Converter");
        break;
    case PageRangeFault::Format:
        m_ports.refusals.refusePages("lblpgformat");
        break;
    case PageRangeFault::TooLong:
        m_ports.refusals.refusePages("lblpgnumber");
        break;
    }
    m_ui->txtFrom->setEnabled(true);
    if (verdict.box == PageRangeBox::EnabledWithFocus)
        m_ui->txtFrom->setFocus();
    return false;
}

void frmMain::txtFrom_KeyPress(int& keyCode) {
    filterPageRangeKey(keyCode, m_ui->txtFrom->text());
}

void frmMain::chkAllPages_Click() {
    m_ports.records.settings.intConvertFrom = 0;
    m_ui->txtFrom->setEnabled(false);
}

void frmMain::lblAllPages_Click() {
    m_ui->chkAllPages->setValue(true);
    chkAllPages_Click();
}

void frmMain::chkFromTo_Click() {
    m_ui->lblFrom->setEnabled(true);
    m_ui->txtFrom->setEnabled(true);
    m_ports.nextWindows.chooseImagePages(NextWindows::ImagePages::List);
    m_ports.records.settings.intConvertFrom = 1;
}
