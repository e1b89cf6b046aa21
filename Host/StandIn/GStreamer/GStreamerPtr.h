#pragma once

#include <gst/gst.h>

#include <memory>

namespace Zelkor::StandIn {

struct GStreamerRelease
{
    void operator()(GstCaps* caps) const { gst_caps_unref(caps); }
    void operator()(GstSample* sample) const { gst_sample_unref(sample); }
    void operator()(GstStructure* structure) const { gst_structure_free(structure); }
    void operator()(GError* error) const { g_error_free(error); }
    void operator()(gchar* text) const { g_free(text); }
    // Elements, pads, buses, devices.
    template<class Object>
    void operator()(Object* object) const
    {
        gst_object_unref(object);
    }
};

/// Owns a reference to a GStreamer object, or a GLib value.
template<class T>
using GStreamerPtr = std::unique_ptr<T, GStreamerRelease>;

} // namespace Zelkor::StandIn
