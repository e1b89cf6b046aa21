#pragma once

#include <QtGlobal>

// VX_WIDGETS_EXPORT: the classes that the widget library shows to applications.
#if defined(VX_WIDGETS_BUILD)
#define VX_WIDGETS_EXPORT Q_DECL_EXPORT
#else
#define VX_WIDGETS_EXPORT Q_DECL_IMPORT
#endif
