#include "layout/assembly/DocumentMetadata.h"

namespace orvane::layout {

document::Metadata metadataOf(const pdf::Metadata& source, const DocumentContext& context) {
    document::Metadata metadata;
    metadata.title = source.title;
    metadata.author = source.author;
    metadata.subject = source.subject;
    metadata.keywords = source.keywords;
    metadata.language = source.language.empty() ? context.language : source.language;
    metadata.created = source.created;
    metadata.modified = source.modified;
    return metadata;
}

} // namespace orvane::layout
