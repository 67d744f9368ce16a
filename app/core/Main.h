#pragma once

#include "core/HomeFolder.h"
#include "records/SharedRecords.h"

#include <QString>

/// Other copies of the program, known by the title of their windows.
class OtherCopies {
public:
    virtual ~OtherCopies() = default;

    enum class Search { NotFound, BroughtForward };

    /// Looks for a window of exactly this title, restores it when it is minimised and makes it the foreground window.
    virtual Search bringForward(const QString& title) = 0;

    /// Activates the application of that title. Errors: throws when there is none.
    virtual void activateApplication(const QString& title) = 0;
};

/// What the process does after Main.
enum class AfterMain { StartUp, EndProcess };

/// 1 when a running copy was found and brought forward, else 0.
int ActivatePreviousInstance(OtherCopies& copies);

/// The program's entry: fixes the home folder and gives way to a running copy, which is handed nothing.
/// Errors: trapped; an error ends the procedure without a message, and with it the process.
AfterMain Main(SharedRecords& records, const HomeFolderSources& folders, OtherCopies& copies);
