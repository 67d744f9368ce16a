#include "ui/wizard/SteppingPage.h"

#include <QPushButton>

void SteppingPage::addSteps() {
    cmdBack = frame().button(PageFrame::Button::Back);
    cmdNext = frame().button(PageFrame::Button::Next);
    cmdLast = frame().button(PageFrame::Button::Last);
    cmdCancel = frame().button(PageFrame::Button::Cancel);
    connect(cmdBack, &QPushButton::clicked, this, [this] { cmdBack_Click(); });
    connect(cmdNext, &QPushButton::clicked, this, [this] { cmdNext_Click(); });
    connect(cmdLast, &QPushButton::clicked, this, [this] { cmdLast_Click(); });
    connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
}

void SteppingPage::cmdCancel_Click() {
    leaveWizard();
}
