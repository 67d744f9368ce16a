#include "core/EngineComponent.h"

#include "services/ErrorTrap.h"

namespace run {

void IsComponentExists(EngineFactory& engines, std::int16_t, QString& message, bool& found) {
    const ErrorTrap trap("frmprogress", "IsComponentExists");
    found = trap([&] { engines.create(); }) == ErrorTrap::Outcome::Done;
    if (!found)
        message = "<Orvane.dll> not found.";
}

} // namespace run
