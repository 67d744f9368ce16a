#pragma once

#include <QString>

/// Refusals to the user in the product's own windows, chosen by the name of the control that holds the text.
class Refusals {
public:
    virtual ~Refusals() = default;

    /// Shows frmErrorOkOnly with that text and waits.
    virtual void refuse(const QString& controlName) = 0;
    /// Shows frmmsgbox with that text and waits: lblpgformat or lblpgnumber.
    virtual void refusePages(const QString& controlName) = 0;
};
