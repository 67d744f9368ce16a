#pragma once

#include <QString>

#include <functional>
#include <optional>

/// Finds the word processor on systems whose programs leave no trace in the registry, and enters it there as
/// release 14.0, so that everything above asks the registry alone.

/// What the search may look at.
struct WordProcessorSources {
    /// The one line of wordprocessor.conf beside the registry's file; empty when there is none.
    QString configuredProgram;
    /// Full path of a program by its name or path; nothing when there is no such program.
    std::function<std::optional<QString>(const QString&)> findProgram;
};

/// What was found, and why, in one line for the user.
struct FoundWordProcessor {
    QString program; ///< full path; empty for none
    QString reason;
};

FoundWordProcessor findWordProcessor(const WordProcessorSources& sources);

/// Enters the program under release 14.0 (folder as "Path", program as "Program"), or takes both out when none was
/// found.
void registerWordProcessor(const FoundWordProcessor& found);

/// Search with this machine's sources, entry, and the reason in WordProcessor.txt in the home folder. Does nothing on
/// Windows, where the word processor's installer keeps the registry. Errors: logged.
void lookForWordProcessor();

/// Full path of the program that was entered; empty for none.
QString wordProcessorProgram();
