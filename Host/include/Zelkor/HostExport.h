#pragma once

// VX_HOST_EXPORT marks classes and functions that the host's library defines.
// VX_HOST_INTERFACE marks interfaces that both sides implement or cast to. Their type information must be unique in the
// process.
#if defined(_WIN32)
#if defined(VX_HOST_BUILD)
#define VX_HOST_EXPORT __declspec(dllexport)
#else
#define VX_HOST_EXPORT __declspec(dllimport)
#endif
#define VX_HOST_INTERFACE
#else
#define VX_HOST_EXPORT __attribute__((visibility("default")))
#define VX_HOST_INTERFACE __attribute__((visibility("default")))
#endif
