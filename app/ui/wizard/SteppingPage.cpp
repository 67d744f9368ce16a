#include "ui/wizard/SteppingPage.h"

#include <QPushButton>

void SteppingPage::addSteps() {
    cmdBack = frame().button("cmdBack", "< Back");
    cmdNext = frame().button("cmdNext", "Next >", PageFrame::Key::Enter);
    cmdLast = frame().button("cmdLast", "Last >>");
    cmdCancel = frame().button("cmdCancel", "Cancel", PageFrame::Key::Escape);
    connect(cmdBack, &QPushButton::clicked, this, [this] { cmdBack_Click(); });
    connect(cmdNext, &QPushButton::clicked, this, [this] { cmdNext_Click(); });
    connect(cmdLast, &QPushButton::clicked, this, [this] { cmdLast_Click(); });
    connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
}
