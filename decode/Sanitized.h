// Whether this is a build with a sanitizer, where the cage cannot be: shadow memory alone is terabytes of
// address space, and reports go to the standard error, which may be a file.
#pragma once

namespace vantor::decode {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool kSanitized = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
constexpr bool kSanitized = true;
#else
constexpr bool kSanitized = false;
#endif
#else
constexpr bool kSanitized = false;
#endif

}  // namespace vantor::decode
