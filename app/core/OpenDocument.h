#pragma once

#include <QString>

struct SharedRecords;

/// Opens documents on this machine.
class DocumentShell {
public:
    virtual ~DocumentShell() = default;

    /// 1 when a word processor is installed, else 0.
    virtual int IsMSWordInstalled() = 0;
    /// Starts the word processor in `folder` with the document as its one argument.
    virtual void openInWordProcessor(const QString& path, const QString& folder) = 0;
    /// Leaves the choice of the program to the desktop.
    virtual void openByAssociation(const QString& path, const QString& folder) = 0;
};

/// The word processor that the probes know, and the desktop's associations.
class SystemDocumentShell : public DocumentShell {
public:
    int IsMSWordInstalled() override;
    void openInWordProcessor(const QString& path, const QString& folder) override;
    void openByAssociation(const QString& path, const QString& folder) override;
};

namespace run {

/// Opens a document in the word processor or, without one, by its file association. Nobody looks at the outcome.
void OpenDocument(DocumentShell& shell, const SharedRecords& records, const QString& path);

} // namespace run
