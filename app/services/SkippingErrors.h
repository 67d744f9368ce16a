#pragma once

/// Runs a statement whose failure nobody hears of: it is passed over, and the next one runs.
template<typename Statement>
void skippingErrors(Statement&& statement) {
    try {
        statement();
    } catch (...) {
        // Skipped.
    }
}
