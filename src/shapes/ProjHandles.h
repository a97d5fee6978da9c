#pragma once

#include <proj.h>

#include <memory>
#include <stdexcept>
#include <string>

// Owners of PROJ's objects for the classes of this folder, so that no path through an exception
// leaks a context or an object. Each context is private to its owner: PROJ's objects are not
// shared between threads, and nothing here is global.
struct ProjContextDeleter {
  void operator()(PJ_CONTEXT* context) const { proj_context_destroy(context); }
};
struct ProjObjectDeleter {
  void operator()(PJ* object) const { proj_destroy(object); }
};
struct ProjListDeleter {
  void operator()(PJ_OBJ_LIST* list) const { proj_list_destroy(list); }
};
using ProjContext = std::unique_ptr<PJ_CONTEXT, ProjContextDeleter>;
using ProjObject = std::unique_ptr<PJ, ProjObjectDeleter>;
using ProjList = std::unique_ptr<PJ_OBJ_LIST, ProjListDeleter>;

// A context that keeps PROJ's own messages off the standard error: the callers say what failed.
inline ProjContext makeQuietProjContext() {
  ProjContext context(proj_context_create());
  if (!context) throw std::runtime_error("PROJ: cannot create a context");
  proj_log_level(context.get(), PJ_LOG_NONE);
  return context;
}

// PROJ's text for the last failure in context.
inline std::string projError(PJ_CONTEXT* context) {
  const char* text = proj_context_errno_string(context, proj_context_errno(context));
  return text ? text : "unknown PROJ failure";
}
