#include "exports.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <sstream>
#include <type_traits>

#include <zors.h>

namespace zors::contract {
namespace {

template <class T>
void randomise(void* p, std::size_t count, Random& random)
{
    auto* element = static_cast<T*>(p);
    for (std::size_t i = 0; i < count; ++i) element[i] = test::element<T>(random);
}

template <class T>
bool setNegative(Value& value)
{
    if constexpr (std::is_signed_v<T>) value.set(static_cast<T>(-1));
    return std::is_signed_v<T>;
}

// What a declaration's argument list says of each parameter: its type from the compiler, its name from the text.
template <class A>
Parameter parameter(const std::string& name)
{
    Parameter p{name};
    if constexpr (std::is_pointer_v<A>) {
        using T = std::remove_pointer_t<A>;
        using Element = std::remove_const_t<T>;
        if constexpr (requires { sizeof(Element); } && !std::is_pointer_v<Element> &&
                      !std::is_void_v<Element>) {
            p.size = sizeof(Element);
            p.randomise = randomise<Element>;
            if (std::is_const_v<T>)
                p.role = Role::source;
            else if (name.starts_with("pSrcDst"))
                p.role = Role::inOut;
            else if (name.starts_with("pDst"))
                p.role = Role::destination;
            else
                p.role = Role::result;
        }
    } else {
        p.size = sizeof(A);
        p.randomise = randomise<A>;
        p.setNegative = setNegative<A>;
        p.role = name == "len" ? Role::length : Role::scalar;
    }
    return p;
}

std::vector<std::string> parameterNames(std::string list)
{
    std::vector<std::string> names;
    std::istringstream text(list.substr(1, list.size() - 2));
    for (std::string one; std::getline(text, one, ',');) {
        const auto begin = one.find_last_of(" *") + 1;
        names.push_back(one.substr(begin));
    }
    return names;
}

// A declaration as the compiler has it, in constants: most of what there is to make of it is not a template.
struct Declaration {
    const char* name;
    const char* list;
    ZorStatus (*invoke)(void* function, const Value* arguments);
    Parameter (*const* parameters)(const std::string& name);
    std::size_t count;
};

template <class... A>
constexpr std::array<Parameter (*)(const std::string&), sizeof...(A)> parametersOf = {parameter<A>...};

template <class... A>
ZorStatus invoke(void* function, const Value* arguments)
{
    return [&]<std::size_t... I>(std::index_sequence<I...>)
    {
        return reinterpret_cast<ZorStatus (*)(A...)>(function)(arguments[I].get<A>()...);
    }
    (std::index_sequence_for<A...>{});
}

template <class... A>
constexpr Declaration declaration(const char* name, const char* list, ZorStatus (*)(A...))
{
    return {name, list, invoke<A...>, parametersOf<A...>.data(), sizeof...(A)};
}

template <class R, class... A>
constexpr Declaration declaration(const char* name, const char* list, R (*)(A...))
{
    return {name, list, nullptr, nullptr, 0};
}

Export exportOf(const Declaration& d)
{
    Export e{d.name, {}, d.invoke, {}};
    if (!d.invoke) {
        e.unreachable = "returns no status";
        return e;
    }
    const auto names = parameterNames(d.list);
    for (std::size_t i = 0; i < d.count; ++i) e.parameters.push_back(d.parameters[i](names.at(i)));
    if (e.has(Role::unknown)) e.unreachable = "takes a record or rows of pointers";
    if (!e.has(Role::length)) e.unreachable = "has no length";
    return e;
}

} // namespace

const Parameter* Export::find(const std::string& parameter) const
{
    for (const auto& p : parameters)
        if (p.name == parameter) return &p;
    return nullptr;
}

bool Export::has(Role role) const
{
    return std::ranges::any_of(parameters, [=](const Parameter& p) { return p.role == role; });
}

#undef ZORSAPI
#define ZORSAPI(type, name, args) declaration(#name, #args, &::name),

const std::vector<Export>& exports()
{
    static constexpr Declaration declarations[] = {
#include <zors.h>
    };
    static const std::vector<Export> table = [] {
        std::vector<Export> all;
        std::ranges::transform(declarations, std::back_inserter(all), exportOf);
        return all;
    }();
    return table;
}

} // namespace zors::contract
