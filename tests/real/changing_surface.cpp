#include "real/changing_surface.h"

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace real {
namespace {

IDirectFBDisplayLayer* own_layer()
{
    IDirectFBDisplayLayer* layer = nullptr;
    EXPECT_EQ(directfb()->GetDisplayLayer(directfb(), DLID_PRIMARY, &layer), DFB_OK);
    layer->SetCooperativeLevel(layer, DLSCL_ADMINISTRATIVE);
    return layer;
}

} // namespace

bool cairo_has_back_end()
{
    return dlsym(RTLD_DEFAULT, "cairo_directfb_surface_create") != nullptr;
}

void await_size(IDirectFBSurface* surface, int width, int height)
{
    int told_width = 0, told_height = 0;
    for (int i = 0; i < 2000 && (told_width != width || told_height != height); ++i) {
        usleep(1000);
        surface->GetSize(surface, &told_width, &told_height);
    }
    EXPECT_EQ(told_width, width);
    EXPECT_EQ(told_height, height);
}

Window::Window(int width, int height, DFBWindowCapabilities caps) : layer_(own_layer())
{
    DFBWindowDescription description = {};
    description.flags = static_cast<DFBWindowDescriptionFlags>(DWDESC_CAPS | DWDESC_WIDTH | DWDESC_HEIGHT |
                                                               DWDESC_PIXELFORMAT);
    description.caps = static_cast<DFBWindowCapabilities>(DWCAPS_ALPHACHANNEL | caps);
    description.width = static_cast<unsigned>(width);
    description.height = static_cast<unsigned>(height);
    description.pixelformat = DSPF_ARGB;
    EXPECT_EQ(layer_->CreateWindow(layer_, &description, &window_), DFB_OK);
    IDirectFBSurface* surface = nullptr;
    EXPECT_EQ(window_->GetSurface(window_, &surface), DFB_OK);
    surface_.reset(surface);
    clear(surface_, background);
}

Window::~Window()
{
    surface_.reset();
    window_->Release(window_);
    layer_->Release(layer_);
}

void Window::resize(int width, int height)
{
    ASSERT_EQ(window_->Resize(window_, width, height), DFB_OK);
    await_size(surface_.get(), width, height);
    clear(surface_, background);
}

Screen::Screen(int width, int height) : layer_(own_layer())
{
    EXPECT_EQ(layer_->GetConfiguration(layer_, &first_), DFB_OK);
    configure(width, height);
    IDirectFBSurface* surface = nullptr;
    EXPECT_EQ(layer_->GetSurface(layer_, &surface), DFB_OK);
    surface_.reset(surface);
    clear(surface_, background);
}

Screen::~Screen()
{
    surface_.reset();
    configure(first_.width, first_.height);
    layer_->Release(layer_);
}

void Screen::configure(int width, int height)
{
    DFBDisplayLayerConfig config = {};
    config.flags = static_cast<DFBDisplayLayerConfigFlags>(DLCONF_WIDTH | DLCONF_HEIGHT);
    config.width = width;
    config.height = height;
    EXPECT_EQ(layer_->SetConfiguration(layer_, &config), DFB_OK);
}

void Screen::resize(int width, int height)
{
    configure(width, height);
    await_size(surface_.get(), width, height);
    clear(surface_, background);
}

} // namespace real
