#pragma once

#include <QtGlobal>

// VX_WIDGETS_EXPORT: the classes that the widget library shows to applications.
//
// They hold private records and derive from classes of Qt and the kit, of which MSVC warns (C4251, C4275) that an
// application might be built with other ones. Qt's headers silence both for whoever includes them, as all of ours do:
// library and application are built with the same compiler and the same Qt.
#if defined(VX_WIDGETS_BUILD)
#define VX_WIDGETS_EXPORT Q_DECL_EXPORT
#else
#define VX_WIDGETS_EXPORT Q_DECL_IMPORT
#endif
