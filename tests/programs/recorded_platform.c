/*
 * Stands between the library's main, which is this program's main, and the platform: writes each call of the platform
 * to standard output and passes it on. In place of the frames it answers the result named by DTK_FRAMES_RESULT.
 */
#include <dlfcn.h>
#include <stdio.h>
#include <stdlib.h>

#include <dtkhddvd.h>
#include <zuvo.h>

static void *next(const char *name)
{
    return dlsym(RTLD_NEXT, name);
}

int zuvo_init(unsigned int components)
{
    int (*pass_on)(unsigned int) = (int (*)(unsigned int))next("zuvo_init");
    printf("zuvo_init(%u)\n", components);
    return pass_on(components);
}

void zuvo_uninit(void)
{
    void (*pass_on)(void) = (void (*)(void))next("zuvo_uninit");
    printf("zuvo_uninit()\n");
    pass_on();
}

unsigned int zuvo_display_open(unsigned int index)
{
    unsigned int (*pass_on)(unsigned int) = (unsigned int (*)(unsigned int))next("zuvo_display_open");
    printf("zuvo_display_open(%u)\n", index);
    return pass_on(index);
}

void zuvo_display_close(unsigned int display)
{
    void (*pass_on)(unsigned int) = (void (*)(unsigned int))next("zuvo_display_close");
    printf("zuvo_display_close(%u)\n", display);
    pass_on(display);
}

int zuvo_display_get(unsigned int display, zuvo_display_settings *settings)
{
    int (*pass_on)(unsigned int, zuvo_display_settings *) =
        (int (*)(unsigned int, zuvo_display_settings *))next("zuvo_display_get");
    printf("zuvo_display_get(%u)\n", display);
    return pass_on(display, settings);
}

int zuvo_display_set(unsigned int display, zuvo_display_settings *settings)
{
    int (*pass_on)(unsigned int, zuvo_display_settings *) =
        (int (*)(unsigned int, zuvo_display_settings *))next("zuvo_display_set");
    printf("zuvo_display_set(%u, format %u)\n", display, settings->video_format);
    return pass_on(display, settings);
}

IDirectFB *zuvo_dfb_ext_open_with_params(unsigned int mode, int *argc, char ***argv)
{
    IDirectFB *(*pass_on)(unsigned int, int *, char ***) =
        (IDirectFB * (*)(unsigned int, int *, char ***)) next("zuvo_dfb_ext_open_with_params");
    printf("zuvo_dfb_ext_open_with_params(%u, %d arguments)\n", mode, *argc);
    return pass_on(mode, argc, argv);
}

void zuvo_dfb_ext_close(void)
{
    void (*pass_on)(void) = (void (*)(void))next("zuvo_dfb_ext_close");
    printf("zuvo_dfb_ext_close()\n");
    pass_on();
}

unsigned int zuvo_dfb_ext_layer_open(unsigned int layer)
{
    unsigned int (*pass_on)(unsigned int) = (unsigned int (*)(unsigned int))next("zuvo_dfb_ext_layer_open");
    printf("zuvo_dfb_ext_layer_open(%u)\n", layer);
    return pass_on(layer);
}

int zuvo_dfb_ext_layer_get(unsigned int layer, zuvo_dfb_ext_layer_settings *settings)
{
    int (*pass_on)(unsigned int, zuvo_dfb_ext_layer_settings *) =
        (int (*)(unsigned int, zuvo_dfb_ext_layer_settings *))next("zuvo_dfb_ext_layer_get");
    printf("zuvo_dfb_ext_layer_get(%u)\n", layer);
    return pass_on(layer, settings);
}

DFBResult test_dtkhd(IDirectFB *dfb, IDirectFBSurface *surface)
{
    const char *result = getenv("DTK_FRAMES_RESULT");
    int width = 0, height = 0;
    (void)dfb;
    surface->GetSize(surface, &width, &height);
    printf("test_dtkhd on %d x %d\n", width, height);
    return result ? (DFBResult)strtoul(result, NULL, 10) : DFB_OK;
}
