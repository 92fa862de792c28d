# The demonstration: a work copy of demo/ and a settings folder of its own, both under build/. Source it after
# common.sh.
simulator="$PWD/build/demo/Train Simulator"
store="$PWD/build/demo/Train Store"
export ZANDOR_HOME="$PWD/build/home"

# demo/ itself is never changed; a copy that is there already keeps what was done in it.
make_demo_copy() {
    if [[ -d build/demo ]]; then return; fi
    rm -rf build/demo.part
    cp -r demo build/demo.part
    mv build/demo.part build/demo
}

# The pictures of the demonstration's vehicles, drawn by the build, as its user would keep them.
give_demo_pictures() {
    mkdir -p "$ZANDOR_HOME/Thumbnails"
    cp -n build/thumbnails/*.bmp "$ZANDOR_HOME/Thumbnails/"
}

# Settings that point at the work copy. The mark in front makes the file UTF-8, so that any folder name will do.
make_demo_settings() {
    local file=$ZANDOR_HOME/Zandor.ini
    mkdir -p "$ZANDOR_HOME"
    if [[ -e $file ]]; then return; fi
    printf '\xEF\xBB\xBF' >"$file"
    sed 's/$/\r/' >>"$file" <<END
;Settings of the demonstration

[General]
Inst=0
Associate=0
PrintName=1
PrintNumber=0
ControlThumbnails=0
NoAlertCoupling=0
PassIsBadCoupling=0
PrintGreen=1
Optimize=1
sfCanvas=0
Color1=12582847
Color2=8388608
Color3=12582911
Color4=128
Color5=16777151
Color6=0
Color7=16777151
Color8=8388608
Color9=15713940
NewFile=1
BakFile=1
CPBakFile=1
Backup=
InstallDir=$simulator
TStoreDir=$store
InitialiseMSTS=1
Langage=English
END
}

# Shows a command as one would type it, then runs it.
show() {
    local shown
    shown=$(printf ' %q' "$@")
    say "" "\$${shown//"$PWD/"/}"
    "$@"
}

# What can be seen without a display: a consist composed, saved, read back, and a picture of the main window.
demonstrate_without_window() {
    local cli=build/bin/zandor-cli
    say "There is no display here, so this is the work done from the command line instead."
    show "$cli" compose "demo_train" --full "Ore and coaches" --overwrite --root "build/demo/Train Simulator" \
        OrmeDiesel/ODX12.eng OrmeDiesel/ODX12.eng:flip Freight1/Orme_Hopper.wag Freight1/Orme_Hopper_Full.wag \
        OrmeCoach/Orme_First.wag
    show "$cli" open "build/demo/Train Simulator/Trains/Consists/demo_train.con" --root "build/demo/Train Simulator"
    if (($# > 0)); then show "$cli" open "$1" --root "build/demo/Train Simulator" || true; fi # 1: stock is missing
    export QT_LOGGING_RULES="default.warning=false;qt.qpa.*=false" # what an offscreen display lacks is of no interest
    local picture=("${@:-build/demo/Train Simulator/Trains/Consists/demo_train.con}")
    show env QT_QPA_PLATFORM=offscreen build/bin/zandor --picture build/zandor.png "${picture[@]}"
    say "" "The main window as it would look is in build/zandor.png." \
        "For the window itself, run ./run on a desktop, or connect with 'ssh -X' and run it there."
}
