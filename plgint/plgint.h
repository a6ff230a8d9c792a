#pragma once

#include "plgint/export.h"

#include <array>
#include <utility>

class QDateTime;
class QMenu;
class QString;
class QWidget;

namespace Tallymere {

// The identity of an interface.
struct Guid
{
    quint32 data1 = 0;
    quint16 data2 = 0;
    quint16 data3 = 0;
    std::array<quint8, 8> data4{};

    friend bool operator==(const Guid &, const Guid &) = default;
};

// The base of every interface between a host and a module. Objects are reached by a cross cast to IInterface, then
// by asking for an identity.
//
// The order of the virtual functions is the contract: a derived interface adds its operations after these three,
// and nothing may be put in between. There is no virtual destructor, because it would take slots; the classes that
// implement an interface are owned and deleted as what they are.
//
// queryInterface has a body in every interface (it answers for the interface's own identity), which also pins the
// type information to this library, so that the cross cast works between binaries that hide their symbols.
class PLGINT_EXPORT IInterface
{
public:
    // Sets *out to the interface of the given identity, adds a reference and returns true; otherwise sets *out to
    // null and returns false.
    virtual bool queryInterface(const Guid &id, void **out);
    // Both return the number of references after the call. Counting is for balance only: a window that implements
    // an interface belongs to its parent and is not deleted with the last reference.
    virtual int addRef() = 0;
    virtual int release() = 0;

protected:
    IInterface() = default;
    IInterface(const IInterface &) = default;
    IInterface &operator=(const IInterface &) = default;
    ~IInterface() = default;
};

// How a host drives a module. Implemented by the module's main form.
class PLGINT_EXPORT IPlugIn : public IInterface
{
public:
    static constexpr Guid id{0x9C4CD2EC, 0x5B8B, 0x4395, {0xAB, 0x5F, 0x3C, 0x1E, 0xF7, 0xB7, 0x88, 0x18}};

    bool queryInterface(const Guid &wanted, void **out) override;

    // Gives the module its host: the parent must implement IHostInterface as well. May be called again.
    virtual void init(QWidget *parent) = 0;
    // Adds the module's one item to the given menu of the host. The menu reference itself may be replaced.
    virtual void setMenu(QMenu *&menu) = 0;
    virtual void prepareMenuDate(const QDateTime &date) = 0;
    // Exact comparison with the names of the modules that this one stands for.
    virtual bool getIsModuleInstalled(const QString &moduleName) = 0;

protected:
    ~IPlugIn() = default;
};

// What a module may ask of its host. Implemented by the window that the host passes to IPlugIn::init.
class PLGINT_EXPORT IHostInterface : public IInterface
{
public:
    static constexpr Guid id{0xD0CC89C2, 0x461D, 0x49FE, {0xB7, 0x19, 0xC3, 0x43, 0xC1, 0xAC, 0x94, 0x30}};

    bool queryInterface(const Guid &wanted, void **out) override;

    // The name of the user who is logged in to the host.
    virtual void getCurrentUser(QString &name) = 0;

protected:
    ~IHostInterface() = default;
};

// A counted reference to an interface of another binary.
template <typename Interface> class InterfaceRef
{
public:
    InterfaceRef() = default;
    InterfaceRef(const InterfaceRef &) = delete;
    InterfaceRef &operator=(const InterfaceRef &) = delete;
    InterfaceRef(InterfaceRef &&other) noexcept
        : m_pointer(std::exchange(other.m_pointer, nullptr))
    {
    }
    InterfaceRef &operator=(InterfaceRef &&other) noexcept
    {
        std::swap(m_pointer, other.m_pointer);
        return *this;
    }
    ~InterfaceRef() { reset(); }

    // The interface of any object that offers it; null otherwise, also for a null object.
    template <typename Object> static InterfaceRef of(Object *object)
    {
        InterfaceRef ref;
        void *found = nullptr;
        auto *base = dynamic_cast<IInterface *>(object);
        if (base && base->queryInterface(Interface::id, &found))
            ref.m_pointer = static_cast<Interface *>(found);
        return ref;
    }

    void reset()
    {
        if (Interface *held = std::exchange(m_pointer, nullptr))
            held->release();
    }
    // Forgets an object that has been deleted already, without releasing it.
    void abandon() { m_pointer = nullptr; }

    Interface *operator->() const { return m_pointer; }
    explicit operator bool() const { return m_pointer != nullptr; }

private:
    Interface *m_pointer = nullptr;
};

} // namespace Tallymere
