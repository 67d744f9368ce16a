#pragma once

#include "layout/text/TextDraft.h"
#include "layout/text/TextParameters.h"
#include "pdf/PageContent.h"

#include <vector>

namespace orvane::layout {

/// What keeps the place of an empty field among the words.
constexpr char32_t kEmptyField = 0xFFFC;

/// Whether the field becomes something to fill in; buttons and signatures stay what is seen of them.
bool isFilledIn(const pdf::FormField& field);

/// The page with a sign in each form field that says nothing by itself: check boxes get the sign of their state in
/// place of what is drawn there, empty fields kEmptyField, values without an appearance are set.
pdf::PageContent withFieldSigns(const pdf::PageContent& page, const TextParameters::Fields& parameters);

/// Gives the characters that stand in a field their Look::field.
void markFields(std::vector<TextRow>& rows, const std::vector<TextFrame>& frames,
                const std::vector<pdf::FormField>& fields, const TextParameters& parameters);

} // namespace orvane::layout
