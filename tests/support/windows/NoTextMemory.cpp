// On Windows the texts of COM come from its task allocator, which a spy may refuse for.
#include <tests/support/NoTextMemory.h>

#include <stdexcept>
#include <windows.h>

#include <objbase.h>
#include <objidl.h>

/// Has no header: from now on the process keeps no freed texts for the next ones.
extern "C" void WINAPI SetOaNoCache();

namespace VyrTests {

// Nobody deletes it through its interface, whose destructor is not virtual.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
struct NoTextMemory::Spy final : IMallocSpy
{
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override
    {
        const bool isKnown = ::IsEqualGUID(id, __uuidof(IMallocSpy)) || ::IsEqualGUID(id, __uuidof(IUnknown));
        *object = isKnown ? this : nullptr;
        return isKnown ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    /// Nothing is allocated.
    SIZE_T STDMETHODCALLTYPE PreAlloc(SIZE_T /*size*/) override { return 0; }
    void* STDMETHODCALLTYPE PostAlloc(void* /*memory*/) override { return nullptr; }

    // The rest goes through unchanged.
    void* STDMETHODCALLTYPE PreFree(void* memory, BOOL /*isSpied*/) override { return memory; }
    void STDMETHODCALLTYPE PostFree(BOOL /*isSpied*/) override {}
    SIZE_T STDMETHODCALLTYPE PreRealloc(void* memory, SIZE_T size, void** given, BOOL /*isSpied*/) override
    {
        *given = memory;
        return size;
    }
    void* STDMETHODCALLTYPE PostRealloc(void* memory, BOOL /*isSpied*/) override { return memory; }
    void* STDMETHODCALLTYPE PreGetSize(void* memory, BOOL /*isSpied*/) override { return memory; }
    SIZE_T STDMETHODCALLTYPE PostGetSize(SIZE_T size, BOOL /*isSpied*/) override { return size; }
    void* STDMETHODCALLTYPE PreDidAlloc(void* memory, BOOL /*isSpied*/) override { return memory; }
    int STDMETHODCALLTYPE PostDidAlloc(void* /*memory*/, BOOL /*isSpied*/, int isAllocated) override
    {
        return isAllocated;
    }
    void STDMETHODCALLTYPE PreHeapMinimize() override {}
    void STDMETHODCALLTYPE PostHeapMinimize() override {}
};
#pragma GCC diagnostic pop

NoTextMemory::NoTextMemory() : m_spy(std::make_unique<Spy>())
{
    ::SetOaNoCache();
    if (FAILED(::CoRegisterMallocSpy(m_spy.get())))
        throw std::runtime_error("the system takes no allocation spy");
}

NoTextMemory::~NoTextMemory()
{
    ::CoRevokeMallocSpy();
}

} // namespace VyrTests
