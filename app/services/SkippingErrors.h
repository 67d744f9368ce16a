#pragma once

/// Runs statements whose failure nobody hears of: one that fails is passed over, and the next one runs.
template<typename... Statements>
void skippingErrors(Statements&&... statements) {
    const auto run = [](auto& statement) {
        try {
            statement();
        } catch (...) {
            // Skipped.
        }
    };
    (run(statements), ...);
}
