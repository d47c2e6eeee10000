#ifndef ZELTNAVMSG_TESTS_SUPPORT_THROWN_H
#define ZELTNAVMSG_TESTS_SUPPORT_THROWN_H

#include <exception>
#include <string>

namespace ZeltNavMsg::Testing {

// What `call` threw as an `Error`: its message; "<no error>" when it returned, and
// "<other error: ...>" for an exception of another category.
template <class Error, class Call>
std::string thrownMessage(Call&& call) {
    try {
        call();
    } catch (const Error& e) {
        return e.what();
    } catch (const std::exception& e) {
        return std::string("<other error: ") + e.what() + ">";
    }
    return "<no error>";
}

}  // namespace ZeltNavMsg::Testing

#endif
