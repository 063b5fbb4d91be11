/*
 * The file that a recording goes into, and what has to be remembered to write it: which layers
 * there are and which of their buffers are known. Memory is fixed: what does not fit is recorded
 * without its pictures.
 */
#ifndef RECORD_RECORDING_H
#define RECORD_RECORDING_H

#include <torvsdk.h>

/* An engine that is recorded may have functions of these names, too. */
#pragma GCC visibility push(hidden)

enum { bufferless = -1 };

/* Begins the line of a call. @return 0 when nothing is recorded (any more) */
int BeginLine(const char* call);
/* Adds to the line, as printf does. */
void Add(const char* format, ...) __attribute__((format(printf, 1, 2)));
/* Ends the line with the time since the first call. */
void EndLine(void);

/* A layer that was made: layer 0 with its session. */
void RememberLayer(PicSession session, int layer, int type, int width, int height,
                   int bytesPerLine);
/* The type of a session's layers, 3 or 5; 0 for a session that is not known. */
int TypeOf(PicSession session);
void ForgetSession(PicSession session);

/*
 * Numbers a buffer as it comes: the first that is painted is 1, the one shown meanwhile 0.
 * @return bufferless for null
 */
int BufferNumber(PicSession session, int layer, const char* buffer);

/* Adds size and digest of what the layer's painted buffer holds, and keeps its pixels if wanted. */
void AddPicture(PicSession session, int layer);
/* The same for rows at @p bits. */
void AddPictureOf(const char* bits, int type, int width, int height, int bytesPerLine);

#pragma GCC visibility pop

#endif
