#include "input.h"

#include <pthread.h>
#include <stdio.h>

#include <core/input_driver.h>

#include "contexts.h"
#include "frame.h"
#include "keys.h"

DFB_INPUT_DRIVER(zuvo_window)

static struct {
    pthread_mutex_t lock;       /* Held while an event is handed over, so that the device does not end meanwhile. */
    CoreInputDevice *device;
    bool is_enabled;
    DFBInputDeviceKeySymbol symbols[SDL_NUM_SCANCODES];     /* What a held key meant when it was pressed. */
} input = {.lock = PTHREAD_MUTEX_INITIALIZER};

void input_enable(bool is_enabled)
{
    input.is_enabled = is_enabled;
}

/* While a layer context ends it is lost. Returns whether it was handed over. */
static bool dispatch(DFBInputEvent *event)
{
    bool is_dispatched = false;

    pthread_mutex_lock(&input.lock);
    if (input.device) {
        is_dispatched = contexts_hold();
        if (is_dispatched)
            dfb_input_dispatch(input.device, event);
        contexts_release_later();
    }
    pthread_mutex_unlock(&input.lock);
    return is_dispatched;
}

/* ---- mouse ---- */

static void dispatch_axis(DFBInputDeviceAxisIdentifier axis, int place, int size, DFBInputEventFlags more)
{
    DFBInputEvent event = {.type = DIET_AXISMOTION, .flags = DIEF_AXISABS | DIEF_MIN | DIEF_MAX | more, .axis = axis};

    event.axisabs = place;
    event.max = size - 1;
    dispatch(&event);
}

static void take_motion(int x, int y)
{
    const SDL_Point place = frame_to_picture(x, y), size = frame_picture_size();

    dispatch_axis(DIAI_X, place.x, size.x, DIEF_FOLLOW);
    dispatch_axis(DIAI_Y, place.y, size.y, DIEF_NONE);
}

static void take_button(const SDL_MouseButtonEvent *button)
{
    static const DFBInputDeviceButtonIdentifier buttons[] = {
        [SDL_BUTTON_LEFT] = DIBI_LEFT, [SDL_BUTTON_MIDDLE] = DIBI_MIDDLE, [SDL_BUTTON_RIGHT] = DIBI_RIGHT,
        [SDL_BUTTON_X1] = DIBI_FIRST + 3, [SDL_BUTTON_X2] = DIBI_FIRST + 4};
    DFBInputEvent event = {.type = button->state == SDL_PRESSED ? DIET_BUTTONPRESS : DIET_BUTTONRELEASE};

    if (button->button < SDL_BUTTON_LEFT || button->button > SDL_BUTTON_X2)
        return;
    take_motion(button->x, button->y);
    event.button = buttons[button->button];
    dispatch(&event);
}

static void take_wheel(int notches)
{
    DFBInputEvent event = {.type = DIET_AXISMOTION, .flags = DIEF_AXISREL, .axis = DIAI_Z, .axisrel = -notches};

    if (notches)
        dispatch(&event);
}

/* ---- keyboard ---- */

/* SDL puts the text that a key makes right behind the event of the key. */
static DFBInputDeviceKeySymbol pressed_symbol(const SDL_Keysym *key)
{
    SDL_Event next;

    if (SDL_PeepEvents(&next, 1, SDL_PEEKEVENT, SDL_FIRSTEVENT, SDL_LASTEVENT) == 1 && next.type == SDL_TEXTINPUT) {
        SDL_PeepEvents(&next, 1, SDL_GETEVENT, SDL_TEXTINPUT, SDL_TEXTINPUT);
        return key_symbol_of_text(next.text.text);
    }
    return key_symbol(key);
}

static bool dispatch_key(DFBInputEventType type, DFBInputDeviceKeyIdentifier id, DFBInputDeviceKeySymbol symbol,
                         DFBInputEventFlags more)
{
    DFBInputEvent event = {.type = type, .flags = DIEF_KEYID | more, .key_id = id, .key_symbol = symbol};

    if (symbol != DIKS_NULL)
        event.flags |= DIEF_KEYSYMBOL;
    return dispatch(&event);
}

static void take_key(const SDL_KeyboardEvent *key)
{
    DFBInputDeviceKeySymbol *symbol = &input.symbols[key->keysym.scancode];
    const bool is_press = key->state == SDL_PRESSED;

    if (is_press)
        *symbol = pressed_symbol(&key->keysym);
    dispatch_key(is_press ? DIET_KEYPRESS : DIET_KEYRELEASE, key_identifier(&key->keysym), *symbol,
                 key->repeat ? DIEF_REPEAT : DIEF_NONE);
}

bool input_press_escape(void)
{
    const bool is_pressed = dispatch_key(DIET_KEYPRESS, DIKI_ESCAPE, DIKS_ESCAPE, DIEF_NONE);

    dispatch_key(DIET_KEYRELEASE, DIKI_ESCAPE, DIKS_ESCAPE, DIEF_NONE);
    return is_pressed;
}

void input_take(const SDL_Event *event)
{
    switch (event->type) {
    case SDL_MOUSEMOTION:
        take_motion(event->motion.x, event->motion.y);
        break;
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP:
        take_button(&event->button);
        break;
    case SDL_MOUSEWHEEL:
        take_wheel(event->wheel.y);
        break;
    case SDL_KEYDOWN:
    case SDL_KEYUP:
        take_key(&event->key);
        break;
    default:
        break;
    }
}

/* ---- the driver ---- */

static int driver_get_available(void)
{
    return input.is_enabled ? 1 : 0;
}

static void driver_get_info(InputDriverInfo *info)
{
    snprintf(info->name, sizeof(info->name), "Window");
    snprintf(info->vendor, sizeof(info->vendor), "zuvo");
    info->version.major = 1;
}

static void set_device(CoreInputDevice *device)
{
    pthread_mutex_lock(&input.lock);
    input.device = device;
    pthread_mutex_unlock(&input.lock);
}

static DFBResult driver_open_device(CoreInputDevice *device, unsigned int number, InputDeviceInfo *info,
                                    void **ret_driver_data)
{
    snprintf(info->desc.name, sizeof(info->desc.name), "Window");
    snprintf(info->desc.vendor, sizeof(info->desc.vendor), "zuvo");
    info->prefered_id = DIDID_KEYBOARD;
    info->desc.type = DIDTF_KEYBOARD | DIDTF_MOUSE;
    info->desc.caps = DICAPS_KEYS | DICAPS_AXES | DICAPS_BUTTONS;
    info->desc.max_axis = DIAI_Z;
    info->desc.max_button = DIBI_FIRST + 4;
    *ret_driver_data = NULL;
    contexts_open();
    set_device(device);
    return DFB_OK;
}

static void driver_close_device(void *driver_data)
{
    set_device(NULL);
    contexts_close();
}

static DFBResult driver_get_keymap_entry(CoreInputDevice *device, void *driver_data, DFBInputDeviceKeymapEntry *entry)
{
    return DFB_UNSUPPORTED;
}
