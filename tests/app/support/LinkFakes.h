#pragma once

#include "services/LinkActions.h"

#include <QStringList>

#include <stdexcept>

namespace tavrelion::tests {

/// Notes what would be opened outside the program.
class FakeOpener : public SystemOpener {
public:
    bool showsHelpBooks = true;
    bool failsToOpen = false;
    QStringList opened;

    bool canShow(const QString& file) const override { return showsHelpBooks && file.endsWith(".chm"); }
    void open(const QString& target) override {
        opened << target;
        if (failsToOpen)
            throw std::runtime_error("no program opens this");
    }
};

} // namespace tavrelion::tests
