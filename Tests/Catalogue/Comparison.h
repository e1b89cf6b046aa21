#pragma once

#include <Catalogue/EntryWindow.h>

/// Compares two inactive windows until they are alike or animations must have ended. Returns an empty string, or the
/// first difference in accessibility, geometry or pixels. `pixelRatio` is the device pixel ratio of the pictures.
QString Difference(EntryWindow& changed, EntryWindow& made, qreal pixelRatio = 1);
