#pragma once

#include <UI/Kit/StyleSheetEditor/ZRuntimeStylesheetEditor.h>
