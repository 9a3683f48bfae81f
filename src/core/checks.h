// Argument checks shared by every exported wrapper.
//
// A wrapper states its family's check order as one chain; the first failed
// check fixes the status and the later ones are skipped:
//
//   if (ZelStatus st = Check().ptrs(pSrc, pDst).roi(roi).steps(srcStep, dstStep))
//       return st;
//
// Nothing is read or written before the chain has passed.
#pragma once

#include "zeli.h"

namespace zel {

class Check {
public:
    // Any null pointer gives zelStatusNullPtr.
    template <class... P>
    Check& ptrs(const P*... p) {
        return that(((p != nullptr) && ...), zelStatusNullPtr);
    }
    // Every entry of a plane-pointer array (and the array itself) must be set.
    template <class T>
    Check& planes(const T* const* planes, int count) {
        if (failed() || planes == nullptr) return that(planes != nullptr, zelStatusNullPtr);
        for (int i = 0; i < count; ++i) that(planes[i] != nullptr, zelStatusNullPtr);
        return *this;
    }
    // A ROI narrower or lower than one pixel gives zelStatusBadSize.
    Check& roi(ZeliSize roi) { return that(roi.width >= 1 && roi.height >= 1, zelStatusBadSize); }
    // Any step below 1 gives zelStatusBadStep.
    template <class... S>
    Check& steps(S... s) {
        return that(((s >= 1) && ...), zelStatusBadStep);
    }
    // A family's own condition with its own code.
    Check& that(bool ok, ZelStatus code) {
        if (status_ == zelStatusOk && !ok) status_ = code;
        return *this;
    }
    bool failed() const { return status_ != zelStatusOk; }
    operator ZelStatus() const { return status_; }

private:
    ZelStatus status_ = zelStatusOk;
};

}  // namespace zel
