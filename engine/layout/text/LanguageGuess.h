#pragma once

#include "layout/text/PageText.h"
#include "layout/text/TextParameters.h"

#include <string>
#include <vector>

namespace orvane::layout {

/// The language that most of the text is written in: by its script where one language has that to itself, else by the
/// short words that every text of a language is full of. A BCP 47 tag with the region where the language is at home,
/// "de-DE"; empty where the text does not tell. Word processors check spelling and divide words by it.
std::string guessLanguage(const std::vector<PageText>& pages, const TextParameters::Languages& parameters);

} // namespace orvane::layout
