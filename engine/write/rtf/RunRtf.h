#pragma once

#include "document/Document.h"
#include "write/rtf/RtfState.h"

namespace orvane::write::rtf {

/// Which characters properties are for. Complex scripts have a font, size, weight and slant of their own.
enum class ScriptUse { Simple, Complex };

/// How characters look after \plain.
const document::RunProperties& plainRun();

/// Writes the words for what differs from `base`.
/// Source: RTF 1.9.1, "Font (Character) Formatting Properties", "Associated Character Properties".
void writeRunProperties(RtfState& state, RtfStream& rtf, const document::RunProperties& properties,
                        const document::RunProperties& base, ScriptUse scripts);

/// Writes the words for what a style's characters are, complete, and what they are not where the style below,
/// `inherited`, has it: LibreOffice has styles inherit what they do not say.
void writeStyleRunProperties(RtfState& state, RtfStream& rtf, const document::RunProperties& properties,
                             const document::RunProperties& inherited);

} // namespace orvane::write::rtf
