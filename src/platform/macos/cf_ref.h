#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include <utility>

namespace ferrow {

// Holds one CoreFoundation reference and releases it once. Say how it was obtained: results of
// Create and Copy functions are adopted; results of Get functions are not owned and must be
// retained to be kept.
template <typename Ref>
class CFRef {
public:
    CFRef() = default;
    static CFRef adopt(Ref ref) { return CFRef(ref); }
    static CFRef retain(Ref ref)
    {
        if (ref)
            CFRetain(ref);
        return CFRef(ref);
    }

    CFRef(const CFRef &) = delete;
    CFRef &operator=(const CFRef &) = delete;
    CFRef(CFRef &&other) noexcept : m_ref(std::exchange(other.m_ref, nullptr)) {}
    CFRef &operator=(CFRef &&other) noexcept
    {
        std::swap(m_ref, other.m_ref);
        return *this;
    }
    ~CFRef()
    {
        if (m_ref)
            CFRelease(m_ref);
    }

    Ref get() const { return m_ref; }
    explicit operator bool() const { return m_ref != nullptr; }

private:
    explicit CFRef(Ref ref) : m_ref(ref) {}
    Ref m_ref = nullptr;
};

} // namespace ferrow
