#pragma once

#include <QString>

class QWidget;

/// The desktop's dialog that asks for a folder.
class FolderDialog {
public:
    virtual ~FolderDialog() = default;

    /// The folder that the user picked, without blanks around it; empty when there is none.
    virtual QString BrowseFolder(QWidget& window, const QString& title) = 0;
};

/// The one that the user sees.
class SystemFolderDialog : public FolderDialog {
public:
    QString BrowseFolder(QWidget& window, const QString& title) override;
};
