/* SHA-1 as FIPS 180-4 has it, for digests of pictures; `animtext trace` prints the same ones. */
#ifndef RECORD_SHA1_H
#define RECORD_SHA1_H

#include <stddef.h>
#include <stdint.h>

#pragma GCC visibility push(hidden)

typedef struct Sha1
{
    uint32_t state[5];
    uint64_t length; /* bytes so far */
    unsigned char block[64];
} Sha1;

void Sha1Begin(Sha1* sha1);
void Sha1Add(Sha1* sha1, const void* data, size_t size);
/* Writes 40 hexadecimal digits and a zero byte. */
void Sha1End(Sha1* sha1, char text[41]);

#pragma GCC visibility pop

#endif
