#pragma once

#include "Options.h"

#include <Examples/Support/Appearance.h>

#include <QAction>
#include <QObject>
#include <QTemporaryDir>

#include <memory>

class ZRuntimeStylesheetEditor;

namespace Zelkor::Gallery {

class GalleryWindow;

/// Runs the program with its options: opens windows or writes pictures. Needs a `QApplication`.
class Application : public QObject
{
public:
    explicit Application(Options options);
    ~Application();

    /// Shows the window or writes the requested pictures. Returns the program's exit code.
    int Run();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ApplyStyle();
    bool MayEnd();
    QWidget* OpenPage(const QString& name);
    void MakeGallery();
    void StartRecorder();
    void OpenStyleEditor();
    void Restart(double scale, const QString& page, int state);
    QStringList LookArguments() const;
    QString LastingStyle() const;
    int TakePictureOfPage(const QString& page, const QString& file);
    int TakePictureAfterClick(QWidget* window, const QString& file, int delay);
    int TakeAllPictures();
    int TakePicturesOfWidgets();

    const Options options;
    QTemporaryDir sheets; ///< style sheet of a palette from the command line
    Examples::Appearance appearance;
    QAction editStyle; ///< with a shortcut for every window
    std::unique_ptr<GalleryWindow> gallery;
    std::unique_ptr<ZRuntimeStylesheetEditor> styleEditor;
};

/// Writes one line to standard error, prefixed with the program's name.
void PrintError(const QString& text);

} // namespace Zelkor::Gallery
