#include "desktop/platform/sdl_sound.h"

#include "platform/posix/drive_map.h"
#include "support/temporary_directory.h"

#include <QByteArray>
#include <QFile>
#include <QtEndian>

#include <SDL.h>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// SDL writes what it plays into a file.
struct SdlSoundTest : testing::Test {
    TemporaryDirectory directory;
    DriveMap drives{{{}, "/tmp", directory.path(), directory.path()}};
    SdlSound sound{drives};

    void SetUp() override
    {
        qputenv("SDL_AUDIODRIVER", "disk");
        qputenv("SDL_DISKAUDIOFILE", QByteArray::fromStdString(directory / "played"));
    }
    void TearDown() override
    {
        qunsetenv("SDL_AUDIODRIVER");
        qunsetenv("SDL_DISKAUDIOFILE");
    }
    QByteArray played() const
    {
        QFile file(QString::fromStdString(directory / "played"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void play(const QByteArray& bytes)
    {
        directory.put("sound.wav", bytes.toStdString());
        sound.play(drives.toDos(directory / "sound.wav"));
    }
};

template <typename Number> QByteArray littleEndian(Number number)
{
    QByteArray bytes(sizeof number, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

/// A WAV file of 16-bit samples in one channel.
QByteArray wavOf(const QByteArray& samples)
{
    constexpr quint32 rate = 44'100;
    return "RIFF" + littleEndian(quint32(36 + samples.size())) + "WAVEfmt " + littleEndian(quint32(16)) +
           littleEndian(quint16(1)) + littleEndian(quint16(1)) + littleEndian(rate) + littleEndian(2 * rate) +
           littleEndian(quint16(2)) + littleEndian(quint16(16)) + "data" + littleEndian(quint32(samples.size())) +
           samples;
}

TEST_F(SdlSoundTest, AllSamplesOfTheFileArePlayedInTheirOrder)
{
    QByteArray samples;
    for (int i = 1; i <= 6000; ++i) samples += littleEndian(qint16(i));
    play(wavOf(samples));
    EXPECT_TRUE(played().contains(samples));
    EXPECT_EQ(SDL_WasInit(SDL_INIT_AUDIO), 0U) << "the device isn't kept";
}

TEST_F(SdlSoundTest, AFileThatIsNoSoundAndOneThatIsNotThereArePassedOver)
{
    play("no sound");
    EXPECT_TRUE(played().isEmpty());
    sound.play(drives.toDos(directory / "missing.wav"));
    sound.play("q:\\missing.wav"); // no such drive
    EXPECT_TRUE(played().isEmpty());
    EXPECT_EQ(SDL_WasInit(SDL_INIT_AUDIO), 0U);
}

TEST_F(SdlSoundTest, WithoutASoundDeviceTheFileIsPassedOver)
{
    qputenv("SDL_AUDIODRIVER", "there is none of this name");
    play(wavOf(QByteArray(200, 'x')));
    EXPECT_TRUE(played().isEmpty());
    EXPECT_EQ(SDL_WasInit(SDL_INIT_AUDIO), 0U);
}

} // namespace
} // namespace tarvex
