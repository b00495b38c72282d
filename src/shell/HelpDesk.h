#pragma once

namespace tavrelin {

// Where users turn for help. Whoever distributes the program puts their own here.
inline constexpr char HelpDeskAddress[] = "https://tavrelin.example.org/support";
inline constexpr char HelpDeskNotice[] =
    "Questions, and the newest version: tavrelin.example.org/support\n"
    "Or write to support@tavrelin.example.org.";

}  // namespace tavrelin
