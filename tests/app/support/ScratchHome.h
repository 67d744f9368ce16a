#pragma once

#include "records/SharedRecords.h"
#include "support/TemporaryFolder.h"

#include <QString>

#include <gtest/gtest.h>

#include <cstdlib>

namespace tavrelion::tests {

/// A home folder and a configuration folder (and with it a registry) of the test's own, and fresh shared records.
class ScratchHome : public testing::Test {
protected:
    ScratchHome() {
        setenv("XDG_CONFIG_HOME", folder.path().c_str(), 1);
        sharedRecords() = SharedRecords();
        sharedRecords().flags.strHomeFolder = home();
    }
    ~ScratchHome() override {
        sharedRecords() = SharedRecords();
        unsetenv("XDG_CONFIG_HOME");
    }

    QString home() const { return QString::fromStdString(folder.path().string()); }
    QString path(const QString& name) const { return home() + '/' + name; }

    orvane::tests::TemporaryFolder folder;
    SharedRecords& records = sharedRecords();
};

} // namespace tavrelion::tests
