#pragma once

#include <QtGlobal>

// VX_WIDGETS_EXPORT: marks the classes that the widget library exports.
//
// They have private members and base classes of Qt and the kit, for which MSVC warns (C4251, C4275) about a mismatch
// between library and application. Qt's headers, which all of ours include, disable both warnings: library and
// application must be built with the same compiler and the same Qt.
//
// The classes of the kit are not exported. An application that links the kit has a second copy of them: qobject_cast(),
// findChild() and findChildren() with a class of the kit do not match objects of the library, not even as a base class.
// Use classes of Qt, exported classes, object names and properties instead.
#if defined(VX_WIDGETS_BUILD)
#define VX_WIDGETS_EXPORT Q_DECL_EXPORT
#else
#define VX_WIDGETS_EXPORT Q_DECL_IMPORT
#endif
