#include "sha1.h"

#include <string.h>

static uint32_t Rotated(uint32_t value, int bits)
{
    return (value << bits) | (value >> (32 - bits));
}

static void AddBlock(Sha1* sha1, const unsigned char* block)
{
    uint32_t words[80];
    uint32_t a = sha1->state[0], b = sha1->state[1], c = sha1->state[2], d = sha1->state[3],
             e = sha1->state[4];
    int i;
    for (i = 0; i < 16; ++i)
        words[i] = (uint32_t)block[4 * i] << 24 | (uint32_t)block[4 * i + 1] << 16 |
                   (uint32_t)block[4 * i + 2] << 8 | block[4 * i + 3];
    for (; i < 80; ++i)
        words[i] = Rotated(words[i - 3] ^ words[i - 8] ^ words[i - 14] ^ words[i - 16], 1);
    for (i = 0; i < 80; ++i) {
        uint32_t mixed, constant, next;
        if (i < 20) {
            mixed = (b & c) | (~b & d);
            constant = 0x5a827999;
        } else if (i < 40) {
            mixed = b ^ c ^ d;
            constant = 0x6ed9eba1;
        } else if (i < 60) {
            mixed = (b & c) | (b & d) | (c & d);
            constant = 0x8f1bbcdc;
        } else {
            mixed = b ^ c ^ d;
            constant = 0xca62c1d6;
        }
        next = Rotated(a, 5) + mixed + e + constant + words[i];
        e = d;
        d = c;
        c = Rotated(b, 30);
        b = a;
        a = next;
    }
    sha1->state[0] += a;
    sha1->state[1] += b;
    sha1->state[2] += c;
    sha1->state[3] += d;
    sha1->state[4] += e;
}

void Sha1Begin(Sha1* sha1)
{
    static const uint32_t start[5] = {0x67452301, 0xefcdab89, 0x98badcfe, 0x10325476, 0xc3d2e1f0};
    memcpy(sha1->state, start, sizeof start);
    sha1->length = 0;
}

void Sha1Add(Sha1* sha1, const void* data, size_t size)
{
    const unsigned char* bytes = data;
    size_t filled = (size_t)(sha1->length % 64);
    sha1->length += size;
    if (filled > 0) {
        const size_t part = size < 64 - filled ? size : 64 - filled;
        memcpy(sha1->block + filled, bytes, part);
        bytes += part;
        size -= part;
        if (filled + part < 64)
            return;
        AddBlock(sha1, sha1->block);
    }
    for (; size >= 64; bytes += 64, size -= 64)
        AddBlock(sha1, bytes);
    memcpy(sha1->block, bytes, size);
}

void Sha1End(Sha1* sha1, char text[41])
{
    static const unsigned char padding[64] = {0x80};
    static const char digits[] = "0123456789abcdef";
    const uint64_t bits = sha1->length * 8;
    const size_t filled = (size_t)(sha1->length % 64);
    unsigned char length[8];
    int i;
    for (i = 0; i < 8; ++i)
        length[i] = (unsigned char)(bits >> (56 - 8 * i));
    Sha1Add(sha1, padding, filled < 56 ? 56 - filled : 120 - filled);
    Sha1Add(sha1, length, 8);
    for (i = 0; i < 40; ++i)
        text[i] = digits[sha1->state[i / 8] >> (28 - 4 * (i % 8)) & 15];
    text[40] = 0;
}
