#ifndef DTK_TOOLKIT_REF_H
#define DTK_TOOLKIT_REF_H

namespace dtk {

/// Releases an interface that a field holds, if any, and clears the field, so that nothing is dropped twice.
template <typename Interface>
void give_back(Interface*& field)
{
    if (field)
        field->Release(field);
    field = nullptr;
}

/// Holds one reference on a DirectFB-style interface and gives it back at the end of the scope.
template <typename Interface>
class Ref {
public:
    Ref() = default;
    Ref(const Ref&) = delete;
    Ref& operator=(const Ref&) = delete;
    ~Ref() { give_back(interface_); }

    /// Where a call stores the reference that it hands out.
    Interface** receive() { return &interface_; }
    Interface* get() const { return interface_; }
    Interface* operator->() const { return interface_; }
    explicit operator bool() const { return interface_; }

private:
    Interface* interface_ = nullptr;
};

} // namespace dtk

#endif
