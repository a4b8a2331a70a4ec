#pragma once

#include "real/directfb.h"

#include <string>

namespace real {

/// Keeps count of the references on DirectFB's main interface and on every surface that is made while it lives. It
/// stands in the AddRef and Release slots of those records, and in the slots that make surfaces.
class ReferenceLedger {
public:
    ReferenceLedger();
    ~ReferenceLedger();
    ReferenceLedger(const ReferenceLedger&) = delete;
    ReferenceLedger& operator=(const ReferenceLedger&) = delete;

    /// References taken on DirectFB's main interface and not given back.
    int on_directfb() const;

    /// References on a surface of the test's, beside the test's own.
    int on(const Surface& surface) const;

    /// How many of the surfaces made since the ledger began, sub-surfaces among them, are alive.
    int surfaces_alive() const;

    /// Lets IDirectFB::CreateSurface answer this result; DFB_OK makes surfaces again.
    void refuse_surfaces(DFBResult result);
};

} // namespace real
