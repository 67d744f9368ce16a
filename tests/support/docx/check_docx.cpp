#include "support/docx/DocxCheck.h"

#include <cstdio>
#include <exception>

/// Prints a line for each fault of the documents that are named; ends with 1 where there is one.
int main(int argc, char** argv) {
    int result = 0;
    for (int i = 1; i < argc; ++i) {
        try {
            for (const std::string& fault : orvane::tests::faultsOfDocx(argv[i])) {
                std::printf("%s: %s\n", argv[i], fault.c_str());
                result = 1;
            }
        } catch (const std::exception& error) {
            std::printf("%s: %s\n", argv[i], error.what());
            result = 1;
        }
    }
    return result;
}
