#pragma once

#include <QString>

#include <optional>

/// The desktop's file dialogs. Both wait for the user; nothing comes back when the user cancels.
/// `filter`: descriptions and patterns, "PDF Files (*.pdf)|*.pdf", with "|" between them all.
class FileDialogs {
public:
    virtual ~FileDialogs() = default;

    struct OpenRequest {
        QString title;
        QString initialFolder; ///< or a file in it
        QString filter;
        qsizetype longestAnswer = 0; ///< characters; a selection beyond it fails as a cancelled one
    };
    /// One file or several: the text that dialogText() makes of them.
    virtual std::optional<QString> open(const OpenRequest& request) = 0;

    struct SaveRequest {
        QString title;
        QString initialFolder;
        QString filter;
        int filterRow = 0; ///< the preselected one, counted from 1; 0, or one that is not there, preselects none
        QString fileName;  ///< proposed
    };
    /// The path as the user left it. The dialog asks before an existing file is chosen.
    virtual std::optional<QString> save(const SaveRequest& request) = 0;
};
