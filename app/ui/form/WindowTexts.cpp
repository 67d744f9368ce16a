#include "ui/form/WindowTexts.h"

#include "i18n/Captions.h"
#include "ui/form/AccessKeys.h"

void captionWindow(LanguageTable& languages, QWidget& window) {
    SelectLanguage(languages, languages.settings.intLanguageID);
    GetControlCaptions(languages, window);
    assignAccessKeys(window);
}
