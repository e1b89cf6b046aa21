#pragma once

#include <QImage>
#include <QStringList>

namespace Zelkor::Catalogue {
struct Entry;
struct State;
} // namespace Zelkor::Catalogue

namespace Zelkor::Documents {

/// What a picture shows besides a state of the catalogue.
enum class Interaction { NONE, HOVER, PRESSED, FOCUS, OPEN };

/// Returns a picture of a widget in a state under the current style sheet; null if the interaction does not apply.
QImage TakePicture(const Catalogue::Entry& entry, const Catalogue::State& state, Interaction interaction);

/// Returns the pictures side by side; null if one is missing.
QImage JoinPictures(const QVector<QImage>& pictures);

} // namespace Zelkor::Documents
