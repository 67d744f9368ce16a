#pragma once

namespace orvane::worker {

/// What a job is writing, as far as whoever ends the job by force has to know.
class AbandonableOutput {
public:
    virtual ~AbandonableOutput() = default;

    /// Removes what is not finished. Thread: any. Returns false when it was too late: all stands.
    virtual bool abandon() = 0;
};

} // namespace orvane::worker
