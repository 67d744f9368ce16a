#pragma once

#include <QString>

#include <cstdint>

/// The second route to the maker, kept ready and not called: a post to the form's page. The declared length is 0, so
/// that nothing of the body goes out as long as the page is not told otherwise. Errors: none; it silently goes no
/// further.
void PostFeedback(const QString& body, const QString& host, std::uint16_t port = 80);
