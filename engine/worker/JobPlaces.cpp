#include "worker/JobPlaces.h"

#include "protocol/PartFile.h"

#include <fstream>

namespace orvane::worker {

WritablePlaces placesOf(const protocol::Job& job) {
    WritablePlaces places;
    if (!job.logPath.empty()) {
        std::ofstream(job.logPath, std::ios::app).flush();
        places.files.emplace_back(job.logPath);
    }
    if (job.task == protocol::Task::Inspect)
        return places;
    if (job.layout == protocol::Layout::Images) {
        places.folders.emplace_back(job.target);
        return places;
    }
    const std::filesystem::path target = protocol::finalTarget(job.target);
    places.folders.push_back(target.has_parent_path() ? target.parent_path() : ".");
    std::error_code error;
    places.folders.push_back(job.scratchFolder.empty() ? std::filesystem::temp_directory_path(error)
                                                       : std::filesystem::path(job.scratchFolder));
    return places;
}

} // namespace orvane::worker
