#pragma once

#include <exception>
#include <string>
#include <typeinfo>

/// The text of the exception that `action` throws, when it is of just that class; otherwise what happened instead.
template <typename Exception, typename Action>
std::string ThrownText(Action action)
{
    try
    {
        action();
        return "nothing thrown";
    }
    catch (const std::exception& error)
    {
        return typeid(error) == typeid(Exception) ? error.what() : "another exception class";
    }
}
