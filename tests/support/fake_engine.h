#pragma once

#include <directfb.h>

namespace fake {

/// The platform: its drawing engine, display and DirectFB start-up. Every call but zuvo_dtk_get_handle is written down.
struct Platform {
    unsigned int engine_handle = 0;     ///< What zuvo_dtk_get_handle answers.
    int handle_queries = 0;             ///< How often it was asked.
    unsigned int video_format = 0;      ///< What the display settles on when it is asked for format 0.
    IDirectFB* directfb = nullptr;      ///< What zuvo_dfb_ext_open_with_params answers.
    const void* last_memory = nullptr;  ///< Where the last rectangle or points lay that the engine was handed.
    unsigned int layer_id = 0;          ///< What zuvo_dfb_ext_layer_get tells.
};

Platform& platform();

} // namespace fake
