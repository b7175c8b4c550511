// A property handler in process, as Windows registers one for a kind of documents: it writes down what it is asked for
// in the file FILE.calls beside the document. What the document holds says which step is to fail: "load", "sets",
// "open" or "write".
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>
#include <windows.h>

#include <objbase.h>
#include <objidl.h>
#include <propidl.h>

namespace {

constexpr GUID unknownId{0x00000000, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
constexpr GUID factoryId{0x00000001, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
constexpr GUID persistId{0x0000010C, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
constexpr GUID persistFileId{0x0000010B, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
constexpr GUID setStorageId{0x0000013A, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
constexpr GUID summaryFormat{0xF29F85E0, 0x4FF9, 0x1068, {0xAB, 0x91, 0x08, 0x00, 0x2B, 0x27, 0xB3, 0xD9}};

/// The documents and factories that live.
LONG objects = 0;

/// What a handler was given, and where it tells of it.
class Document
{
public:
    void Load(const wchar_t* path, DWORD mode)
    {
        m_path = path;
        std::ifstream file(ToNarrow(m_path));
        std::getline(file, m_failing);
        std::ostringstream call;
        call << "load " << mode;
        Tell(call.str());
    }
    [[nodiscard]] bool FailsAt(const char* step) const { return m_failing == step; }
    void Tell(const std::string& call) const
    {
        std::ofstream(ToNarrow(m_path + L".calls"), std::ios::app | std::ios::binary) << call << "\n";
    }
    [[nodiscard]] const std::wstring& Path() const { return m_path; }

private:
    static std::string ToNarrow(const std::wstring& path)
    {
        std::string bytes(path.size() * 3 + 1, '\0');
        const int length = WideCharToMultiByte(CP_ACP, 0, path.c_str(), -1, bytes.data(),
                                               static_cast<int>(bytes.size()), nullptr, nullptr);
        bytes.resize(length > 0 ? static_cast<std::size_t>(length) - 1 : 0);
        return bytes;
    }

    std::wstring m_path;
    std::string m_failing;
};

/// Counts its references, and the objects of this library.
template <class Interface>
class Counted : public Interface
{
public:
    Counted() { InterlockedIncrement(&objects); }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;
    virtual ~Counted() { InterlockedDecrement(&objects); }

    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(InterlockedIncrement(&m_references)); }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const LONG left = InterlockedDecrement(&m_references);
        if (left == 0)
            delete this;
        return static_cast<ULONG>(left);
    }

private:
    LONG m_references = 1;
};

std::string ToUtf8(const wchar_t* text)
{
    char bytes[1024] = "";
    WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes, sizeof bytes, nullptr, nullptr);
    return bytes;
}

class Set final : public Counted<IPropertyStorage>
{
public:
    explicit Set(Document document) : m_document(std::move(document)) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID /*id*/, void** object) override
    {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    HRESULT STDMETHODCALLTYPE WriteMultiple(ULONG count, const PROPSPEC* ids, const PROPVARIANT* values,
                                            PROPID firstName) override
    {
        for (ULONG index = 0; index < count; ++index) {
            std::ostringstream call;
            call << "write " << ids[index].ulKind << " " << ids[index].propid << " " << values[index].vt << " "
                 << firstName << " " << (values[index].vt == VT_LPWSTR ? ToUtf8(values[index].pwszVal) : "");
            m_document.Tell(call.str());
        }
        return m_document.FailsAt("write") ? STG_E_ACCESSDENIED : S_OK;
    }
    HRESULT STDMETHODCALLTYPE ReadMultiple(ULONG, const PROPSPEC*, PROPVARIANT*) override { return S_FALSE; }
    HRESULT STDMETHODCALLTYPE DeleteMultiple(ULONG, const PROPSPEC*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE ReadPropertyNames(ULONG, const PROPID*, LPOLESTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE WritePropertyNames(ULONG, const PROPID*, const LPOLESTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DeletePropertyNames(ULONG, const PROPID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Commit(DWORD) override
    {
        m_document.Tell("commit");
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Revert() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Enum(IEnumSTATPROPSTG**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetTimes(const FILETIME*, const FILETIME*, const FILETIME*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetClass(REFCLSID) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Stat(STATPROPSETSTG*) override { return E_NOTIMPL; }

private:
    Document m_document;
};

class Sets final : public Counted<IPropertySetStorage>
{
public:
    explicit Sets(Document document) : m_document(std::move(document)) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override
    {
        *object = IsEqualGUID(id, setStorageId) || IsEqualGUID(id, unknownId) ? this : nullptr;
        if (!*object)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Create(REFFMTID, const CLSID*, DWORD, DWORD, IPropertyStorage**) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Open(REFFMTID format, DWORD mode, IPropertyStorage** set) override
    {
        std::ostringstream call;
        call << "open " << (IsEqualGUID(format, summaryFormat) ? "summary " : "other ") << mode;
        m_document.Tell(call.str());
        *set = m_document.FailsAt("open") ? nullptr : new Set(m_document);
        return *set ? S_OK : STG_E_FILENOTFOUND;
    }
    HRESULT STDMETHODCALLTYPE Delete(REFFMTID) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Enum(IEnumSTATPROPSETSTG**) override { return E_NOTIMPL; }

private:
    Document m_document;
};

class Handler final : public Counted<IPersistFile>
{
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override
    {
        *object = nullptr;
        if (IsEqualGUID(id, setStorageId)) {
            if (m_document.FailsAt("sets"))
                return E_NOINTERFACE;
            *object = new Sets(m_document);
            return S_OK;
        }
        if (!IsEqualGUID(id, persistFileId) && !IsEqualGUID(id, persistId) && !IsEqualGUID(id, unknownId))
            return E_NOINTERFACE;
        *object = this;
        AddRef();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetClassID(CLSID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE IsDirty() override { return S_FALSE; }
    HRESULT STDMETHODCALLTYPE Load(LPCOLESTR path, DWORD mode) override
    {
        m_document.Load(path, mode);
        return m_document.FailsAt("load") ? STG_E_ACCESSDENIED : S_OK;
    }
    HRESULT STDMETHODCALLTYPE Save(LPCOLESTR, BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SaveCompleted(LPCOLESTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetCurFile(LPOLESTR*) override { return E_NOTIMPL; }

private:
    Document m_document;
};

class Factory final : public Counted<IClassFactory>
{
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override
    {
        *object = IsEqualGUID(id, factoryId) || IsEqualGUID(id, unknownId) ? this : nullptr;
        if (!*object)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** object) override
    {
        *object = nullptr;
        if (outer)
            return CLASS_E_NOAGGREGATION;
        auto* const handler = new Handler;
        const HRESULT result = handler->QueryInterface(id, object);
        handler->Release();
        return result;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL isLocked) override
    {
        isLocked ? InterlockedIncrement(&objects) : InterlockedDecrement(&objects);
        return S_OK;
    }
};

} // namespace

extern "C" HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID /*handler*/, REFIID id, void** object)
{
    auto* const factory = new Factory;
    const HRESULT result = factory->QueryInterface(id, object);
    factory->Release();
    return result;
}

extern "C" HRESULT STDAPICALLTYPE DllCanUnloadNow()
{
    return objects == 0 ? S_OK : S_FALSE;
}
