/* Prints the events of the window's mouse and keyboard until Escape, then makes and ends contexts of the layer, and ends. */
#include <stdio.h>

#include <directfb.h>
#include <zuvo.h>

static void print(const DFBInputEvent *event)
{
    switch (event->type) {
    case DIET_KEYPRESS:
    case DIET_KEYRELEASE:
        printf("key %x %s %x\n", event->key_symbol, event->type == DIET_KEYPRESS ? "pressed" : "released", event->modifiers);
        break;
    case DIET_BUTTONPRESS:
    case DIET_BUTTONRELEASE:
        printf("button %d %s\n", event->button, event->type == DIET_BUTTONPRESS ? "pressed" : "released");
        break;
    case DIET_AXISMOTION:
        printf("axis %d %s %d\n", event->axis, event->flags & DIEF_AXISABS ? "at" : "by",
               event->flags & DIEF_AXISABS ? event->axisabs : event->axisrel);
        break;
    default:
        break;
    }
    fflush(stdout);
}

static int is_escape(const DFBInputEvent *event)
{
    return event->type == DIET_KEYPRESS && event->key_symbol == DIKS_ESCAPE;
}

static void print_events(IDirectFB *dfb)
{
    IDirectFBEventBuffer *events;
    DFBInputEvent event = {0};

    dfb->CreateInputEventBuffer(dfb, DICAPS_ALL, DFB_TRUE, &events);
    puts("listening");
    fflush(stdout);
    while (!is_escape(&event)) {
        events->WaitForEvent(events);
        while (!is_escape(&event) && events->GetEvent(events, DFB_EVENT(&event)) == DFB_OK)
            print(&event);
    }
    events->Release(events);
}

static void make_contexts(IDirectFB *dfb)
{
    IDirectFBDisplayLayer *layer;
    int i;

    for (i = 0; i < 3000; ++i) {
        dfb->GetDisplayLayer(dfb, DLID_PRIMARY, &layer);
        layer->SetCooperativeLevel(layer, DLSCL_EXCLUSIVE);
        layer->Release(layer);
    }
}

int main(int argc, char **argv)
{
    const DFBSurfaceDescription description = {
        .flags = DSDESC_CAPS | DSDESC_WIDTH | DSDESC_HEIGHT, .caps = DSCAPS_PRIMARY, .width = 640, .height = 480};
    IDirectFB *dfb;
    IDirectFBSurface *screen;

    zuvo_display_close(0);
    if (DirectFBInit(&argc, &argv) || DirectFBCreate(&dfb))
        return 1;
    dfb->SetCooperativeLevel(dfb, DFSCL_FULLSCREEN);
    if (dfb->CreateSurface(dfb, &description, &screen))
        return 1;
    screen->Clear(screen, 0, 0x80, 0xFF, 0xFF);
    screen->Flip(screen, NULL, DSFLIP_NONE);
    print_events(dfb);
    screen->Release(screen);
    make_contexts(dfb);
    dfb->Release(dfb);
    return 0;
}
