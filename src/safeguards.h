// safeguards: the last include of every file but the wrappers' own. It turns the calls that have
// overrun a buffer in some program every year into compile errors; the bounded forms are in text.h
// and memory.h.
#pragma once
#pragma GCC poison strcpy strcat sprintf vsprintf strncpy strncat strtok gets atoi atol atof
#pragma GCC poison malloc calloc realloc
