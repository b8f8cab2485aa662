// Stands before the installed one where the core is built alone.
#pragma once

#error "the core is built where no JSON library is installed"
