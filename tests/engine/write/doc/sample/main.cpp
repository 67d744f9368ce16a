#include "SampleDocument.h"
#include "support/TemporaryFolder.h"
#include "write/doc/DocWriter.h"

#include <cstdio>

/// Writes the sample document to the file that is named.
int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: doc_sample TARGET.doc\n", stderr);
        return 2;
    }
    const orvane::tests::TemporaryFolder folder;
    orvane::PictureStore pictures(folder.path());
    orvane::Diagnostics diagnostics;
    orvane::write::writeDoc(orvane::tests::sampleDocument(pictures), pictures, argv[1], diagnostics);
    for (const orvane::Diagnostic& diagnostic : diagnostics.entries())
        std::printf("%s: %s\n", toString(diagnostic.kind), diagnostic.message.c_str());
    return 0;
}
