#include "core/EnglishStatusTexts.h"

QStringList EnglishStatusTexts::lblProgressStatus() const {
    return {"Opening the document...",
            "Reading the document...",
            "Analysing fonts...",
            "Converting page %ld",
            " of %ld",
            "Converting picture %ld",
            "Writing page %ld",
            "Generating the document...",
            "Document complete",
            "Image extraction complete"};
}
