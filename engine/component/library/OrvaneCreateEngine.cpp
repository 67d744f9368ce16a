#include "component/WorkerEngine.h"
#include "orvane/ConversionEngine.h"
#include "protocol/WorkerProgram.h"

extern "C" __attribute__((visibility("default"))) orvane::ConversionEngine* OrvaneCreateEngine() {
    try {
        std::filesystem::path worker = orvane::protocol::workerProgram();
        std::error_code error;
        if (!std::filesystem::is_regular_file(worker, error))
            return nullptr;
        return new orvane::component::WorkerEngine(std::move(worker));
    } catch (const std::exception&) {
        return nullptr;
    }
}
