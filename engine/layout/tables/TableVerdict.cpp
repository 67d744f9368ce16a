#include "layout/tables/TableVerdict.h"

namespace orvane::layout {

const char* toString(TableVerdict verdict) {
    switch (verdict) {
    case TableVerdict::Table:
        return "Table";
    case TableVerdict::SinglePlace:
        return "SinglePlace";
    case TableVerdict::BrokenGrid:
        return "BrokenGrid";
    case TableVerdict::StraddlingWords:
        return "StraddlingWords";
    case TableVerdict::Empty:
        return "Empty";
    case TableVerdict::TooFlat:
        return "TooFlat";
    case TableVerdict::Drawing:
        return "Drawing";
    case TableVerdict::PageFrame:
        return "PageFrame";
    case TableVerdict::TooSmall:
        return "TooSmall";
    case TableVerdict::Contents:
        return "Contents";
    case TableVerdict::Index:
        return "Index";
    case TableVerdict::List:
        return "List";
    case TableVerdict::KeyValues:
        return "KeyValues";
    case TableVerdict::Prose:
        return "Prose";
    case TableVerdict::SideBySide:
        return "SideBySide";
    case TableVerdict::Code:
        return "Code";
    case TableVerdict::Formula:
        return "Formula";
    case TableVerdict::Ragged:
        return "Ragged";
    }
    return "";
}

} // namespace orvane::layout
