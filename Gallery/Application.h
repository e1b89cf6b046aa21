#pragma once

#include "Languages.h"
#include "Options.h"
#include "Preferences.h"
#include "RecorderModel.h"

#include <Zelkor/StandIn/DeviceList.h>

#include <QAction>

#include <memory>

class ZRuntimeStylesheetEditor;

namespace Zelkor::Gallery {

class GalleryWindow;
class RecorderWindow;

/// The program behind its command line: windows, devices, and pictures. Needs a `QApplication`.
class Application
{
public:
    explicit Application(Options options);
    ~Application();

    /// Shows the window, or takes the pictures that were asked for. The program's exit code.
    int Run();

private:
    void UseLanguage(const QString& code);
    void UseStyle(const QString& name);
    QWidget* OpenPage(const QString& name);
    void Show(QWidget* window, const QSize& size) const;
    void MakeGallery();
    void OpenWidgets();
    void OpenStyleEditor();
    void Restart(double scale, const QString& page);
    void GreetOnce();
    int TakePictureOfPage(const QString& page, const QString& file);
    int TakeAllPictures();
    int TakePicturesOfWidgets();

    const Options options;
    Translations translations;
    Preferences preferences;
    QAction editStyle; ///< with its shortcut in every window
    StandIn::DeviceList devices;
    RecorderModel model;
    std::unique_ptr<RecorderWindow> recorder;
    std::unique_ptr<GalleryWindow> gallery;
    std::unique_ptr<ZRuntimeStylesheetEditor> styleEditor;
};

/// Writes one line to standard error, under the program's name.
void Complain(const QString& text);

} // namespace Zelkor::Gallery
