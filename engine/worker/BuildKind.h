#pragma once

namespace orvane::worker {

/// A sanitizer reserves terabytes of address space and traces its own threads, which a plain build is kept from.
enum class BuildKind { Plain, Sanitized };

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr BuildKind kBuildKind = BuildKind::Sanitized;
#else
inline constexpr BuildKind kBuildKind = BuildKind::Plain;
#endif

} // namespace orvane::worker
