#pragma once

#include <QString>

#include <cstdint>

/// The windows that the main window hands over to. They work on the shared records; each shows the main window again
/// when it is through.
class NextWindows {
public:
    virtual ~NextWindows() = default;

    /// frmLayout, the first page of the conversion wizard.
    virtual void showLayout() = 0;
    /// frmOutputOptions, the page before it on the road from the menu.
    virtual void showOutputOptions() = 0;
    /// frmOption.
    virtual void showOptions() = 0;

    /// frmProgress, which carries the job of the records out.
    virtual void showProgress() = 0;
    /// The same, and waits until the run is over. The window is gone afterwards.
    virtual void showProgressAndWait() = 0;

    // frmImageFormatOutput, the first page of the extraction wizard, which is made when it is not there yet.

    enum class ImagePages { All, List };
    /// Turns its option chkAllPages or chkFromTo on.
    virtual void chooseImagePages(ImagePages pages) = 0;
    /// Caption of its option optSameSourceImages.
    virtual QString sameSourceImagesCaption() = 0;
    virtual void setImagePages(const QString& strExtractPages, std::int16_t intExtractFromTo) = 0;
    virtual void showImageFormatOutput() = 0;
};
