#pragma once

#include "services/LinkActions.h"

/// Opens files and addresses with the programs that the desktop assigns to them.
class DesktopOpener : public SystemOpener {
public:
    bool canShow(const QString& file) const override;
    void open(const QString& target) override;
};
