#pragma once

#include <QtGlobal>

// VX_WIDGETS_EXPORT: the classes that the widget library shows to applications.
//
// They hold private records and derive from classes of Qt and the kit, of which MSVC warns (C4251, C4275) that an
// application might be built with other ones. Qt's headers silence both for whoever includes them, as all of ours do:
// library and application are built with the same compiler and the same Qt.
//
// The classes of the kit are not shown. An application that links the kit has a second copy of them, and no
// qobject_cast(), findChild() or findChildren() by a class of the kit finds a widget that comes out of the library,
// base classes included. Use classes of Qt, exported classes, object names and properties instead.
#if defined(VX_WIDGETS_BUILD)
#define VX_WIDGETS_EXPORT Q_DECL_EXPORT
#else
#define VX_WIDGETS_EXPORT Q_DECL_IMPORT
#endif
