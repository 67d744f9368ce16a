#pragma once

#include "document/Document.h"
#include "write/doc/Bytes.h"

namespace orvane::write::doc {

/// Adds a border with its colour. Source: [MS-DOC] 2.9.16 (Brc).
void addBorder(Bytes& bytes, const document::Border& border);

/// Adds a border in the shorter form, without its colour. Source: [MS-DOC] 2.9.17 (Brc80).
void addShortBorder(Bytes& bytes, const document::Border& border);

} // namespace orvane::write::doc
