<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Panel</name>
    <message>
        <source>%1 are chosen, and there is room for %2: the last cell shows the last.</source>
        <translation>选了 %1 项，只有 %2 格：最后一格显示最后一项。</translation>
    </message>
    <message>
        <source>%1 could not be read whole and will be kept as %2</source>
        <translation>%1 未能完整读取，将保留为 %2</translation>
    </message>
    <message>
        <source>%1 has changed since you chose it: press %2 to load it as it is now</source>
        <translation>%1 在您选择之后已改变：请按 %2 加载现在的内容</translation>
    </message>
    <message>
        <source>%1 has lines of another program too; they are in the log now</source>
        <translation>%1 中还有另一个程序写入的行，现已并入日志</translation>
    </message>
    <message>
        <source>%1 has no data</source>
        <translation>%1 中没有数据</translation>
    </message>
    <message>
        <source>%1 has no record of what was chosen</source>
        <translation>%1 中没有所选通道的波形</translation>
    </message>
    <message>
        <source>%1 has no spectrum: its scales are not known, or its record is cut</source>
        <translation>%1 没有频谱：刻度未知或记录不完整</translation>
    </message>
    <message>
        <source>%1 has too few brackets: values of the report stand in wrong places</source>
        <translation>%1 的方括号太少：报告中有数值位置不对</translation>
    </message>
    <message>
        <source>%1 holds no setup</source>
        <translation>%1 中没有设置</translation>
    </message>
    <message>
        <source>%1 in divisions: its scale is not known</source>
        <translation>%1 以格为单位：刻度未知</translation>
    </message>
    <message>
        <source>%1 in divisions: math has no volts</source>
        <translation>%1 以格为单位：数学运算没有伏特值</translation>
    </message>
    <message>
        <source>%1 is clipped: levels and harmonics are not the signal's own</source>
        <translation>%1 被削波：电平和谐波并非信号本身的</translation>
    </message>
    <message>
        <source>%1 is no value</source>
        <translation>%1 不是有效值</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 条记录</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 行</translation>
    </message>
    <message>
        <source>%1 was changed by another program, and that is kept as %2</source>
        <translation>%1 已被另一个程序修改，该版本保留为 %2</translation>
    </message>
    <message>
        <source>%1 was not loaded whole</source>
        <translation>%1 未能完整加载</translation>
    </message>
    <message>
        <source>%1 was not loaded: %2</source>
        <translation>未能载入 %1：%2</translation>
    </message>
    <message>
        <source>%1, %2: different sweeps</source>
        <translation>%1、%2：不同次扫描</translation>
    </message>
    <message>
        <source>%1: %2 from line to line</source>
        <translation>%1：谱线间隔 %2</translation>
    </message>
    <message>
        <source>%1: %2 of %3 settings not confirmed</source>
        <translation>%1：%3 项设置中有 %2 项未确认</translation>
    </message>
    <message>
        <source>%1: %2, %3 to %4</source>
        <translation>%1：%2，%3 至 %4</translation>
    </message>
    <message>
        <source>%1: %2, %3, %4</source>
        <translation>%1：%2，%3，%4</translation>
    </message>
    <message>
        <source>%1: drawn at position %2, not at %3</source>
        <translation>%1：波形画在位置 %2，而非 %3</translation>
    </message>
    <message>
        <source>%1: earlier records under these scales: %2</source>
        <translation>%1：此刻度下更早的记录：%2 条</translation>
    </message>
    <message>
        <source>%1: given up</source>
        <translation>%1：已放弃</translation>
    </message>
    <message>
        <source>%1: given up, %2 of %3 not answered</source>
        <translation>%1：已放弃，%3 个中有 %2 个未应答</translation>
    </message>
    <message>
        <source>%1: last record %2 min ago</source>
        <translation>%1：最近记录在 %2 分钟前</translation>
    </message>
    <message>
        <source>%1: last record %2 s ago</source>
        <translation>%1：最近记录在 %2 秒前</translation>
    </message>
    <message>
        <source>%1: last record over %2 s ago</source>
        <translation>%1：最近记录在 %2 秒多以前</translation>
    </message>
    <message>
        <source>%1: live</source>
        <translation>%1：实时</translation>
    </message>
    <message>
        <source>%1: made at %2</source>
        <translation>%1：记录时为 %2</translation>
    </message>
    <message>
        <source>%1: mean of %2 spectra, %3 from line to line</source>
        <translation>%1：%2 个频谱的平均，谱线间隔 %3</translation>
    </message>
    <message>
        <source>%1: no answer to %2 of %3 questions</source>
        <translation>%1：%3 个查询中有 %2 个无应答</translation>
    </message>
    <message>
        <source>%1: no answer to %2 of %3 questions, %4 not asked</source>
        <translation>%1：%3 个查询中有 %2 个无应答，%4 个未发出</translation>
    </message>
    <message>
        <source>%1: no record yet</source>
        <translation>%1：尚无记录</translation>
    </message>
    <message>
        <source>%1: not known whether recorded at %2</source>
        <translation>%1：不知是否在 %2 下记录</translation>
    </message>
    <message>
        <source>%1: not the channel, but %2</source>
        <translation>%1：不是通道本身，而是 %2</translation>
    </message>
    <message>
        <source>%1: question %2 of %3</source>
        <translation>%1：第 %2 个查询，共 %3 个</translation>
    </message>
    <message>
        <source>%1: question %2 of %3, %4 not answered</source>
        <translation>%1：第 %2 个查询，共 %3 个，%4 个无应答</translation>
    </message>
    <message>
        <source>%1: recorded at %2, not at %3</source>
        <translation>%1：在 %2 下记录，而非 %3</translation>
    </message>
    <message>
        <source>%1: scale not known</source>
        <translation>%1：刻度未知</translation>
    </message>
    <message>
        <source>%1: setting %2 of %3</source>
        <translation>%1：第 %2 项设置，共 %3 项</translation>
    </message>
    <message>
        <source>%1: setting %2 of %3, %4 not confirmed</source>
        <translation>%1：第 %2 项设置，共 %3 项，%4 项未确认</translation>
    </message>
    <message>
        <source>%1: unchanged for %2 min</source>
        <translation>%1：%2 分钟未变</translation>
    </message>
    <message>
        <source>%1: unchanged for %2 s</source>
        <translation>%1：%2 秒未变</translation>
    </message>
    <message>
        <source>%1: wait until the autoset is over</source>
        <translation>%1：请等待自动设置结束</translation>
    </message>
    <message>
        <source>%1: wait until the settings have been sent</source>
        <translation>%1：请等待设置发送完毕</translation>
    </message>
    <message>
        <source>(%1 measured so far)</source>
        <translation>（已测量 %1 条）</translation>
    </message>
    <message>
        <source>(of several ports)</source>
        <translation>（来自多个端口）</translation>
    </message>
    <message>
        <source>1 record</source>
        <translation>1 条记录</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 行</translation>
    </message>
    <message>
        <source>100mV per division</source>
        <translation>每格 100 mV</translation>
    </message>
    <message>
        <source>100ms per division</source>
        <translation>每格 100 ms</translation>
    </message>
    <message>
        <source>100ns per division</source>
        <translation>每格 100 ns</translation>
    </message>
    <message>
        <source>100us per division</source>
        <translation>每格 100 µs</translation>
    </message>
    <message>
        <source>10mV per division</source>
        <translation>每格 10 mV</translation>
    </message>
    <message>
        <source>10ms per division</source>
        <translation>每格 10 ms</translation>
    </message>
    <message>
        <source>10ns per division</source>
        <translation>每格 10 ns</translation>
    </message>
    <message>
        <source>10us per division</source>
        <translation>每格 10 µs</translation>
    </message>
    <message>
        <source>1V per division</source>
        <translation>每格 1 V</translation>
    </message>
    <message>
        <source>1ms per division</source>
        <translation>每格 1 ms</translation>
    </message>
    <message>
        <source>1s per division</source>
        <translation>每格 1 s</translation>
    </message>
    <message>
        <source>1us per division</source>
        <translation>每格 1 µs</translation>
    </message>
    <message>
        <source>200mV per division</source>
        <translation>每格 200 mV</translation>
    </message>
    <message>
        <source>200ms per division</source>
        <translation>每格 200 ms</translation>
    </message>
    <message>
        <source>200ns per division</source>
        <translation>每格 200 ns</translation>
    </message>
    <message>
        <source>200us per division</source>
        <translation>每格 200 µs</translation>
    </message>
    <message>
        <source>20mV per division</source>
        <translation>每格 20 mV</translation>
    </message>
    <message>
        <source>20ms per division</source>
        <translation>每格 20 ms</translation>
    </message>
    <message>
        <source>20ns per division</source>
        <translation>每格 20 ns</translation>
    </message>
    <message>
        <source>20us per division</source>
        <translation>每格 20 µs</translation>
    </message>
    <message>
        <source>2V per division</source>
        <translation>每格 2 V</translation>
    </message>
    <message>
        <source>2mV per division</source>
        <translation>每格 2 mV</translation>
    </message>
    <message>
        <source>2ms per division</source>
        <translation>每格 2 ms</translation>
    </message>
    <message>
        <source>2ns per division</source>
        <translation>每格 2 ns</translation>
    </message>
    <message>
        <source>2s per division</source>
        <translation>每格 2 s</translation>
    </message>
    <message>
        <source>2us per division</source>
        <translation>每格 2 µs</translation>
    </message>
    <message>
        <source>500mV per division</source>
        <translation>每格 500 mV</translation>
    </message>
    <message>
        <source>500ms per division</source>
        <translation>每格 500 ms</translation>
    </message>
    <message>
        <source>500ns per division</source>
        <translation>每格 500 ns</translation>
    </message>
    <message>
        <source>500us per division</source>
        <translation>每格 500 µs</translation>
    </message>
    <message>
        <source>50mV per division</source>
        <translation>每格 50 mV</translation>
    </message>
    <message>
        <source>50ms per division</source>
        <translation>每格 50 ms</translation>
    </message>
    <message>
        <source>50ns per division</source>
        <translation>每格 50 ns</translation>
    </message>
    <message>
        <source>50us per division</source>
        <translation>每格 50 µs</translation>
    </message>
    <message>
        <source>5V per division</source>
        <translation>每格 5 V</translation>
    </message>
    <message>
        <source>5mV per division</source>
        <translation>每格 5 mV</translation>
    </message>
    <message>
        <source>5ms per division</source>
        <translation>每格 5 ms</translation>
    </message>
    <message>
        <source>5ns per division</source>
        <translation>每格 5 ns</translation>
    </message>
    <message>
        <source>5s per division</source>
        <translation>每格 5 s</translation>
    </message>
    <message>
        <source>5us per division</source>
        <translation>每格 5 µs</translation>
    </message>
    <message>
        <source>A record of the recorder is %1</source>
        <translation>记录仪的一条记录为 %1</translation>
    </message>
    <message>
        <source>A reply is missing: the scales are certain in %1 s</source>
        <translation>缺少一个应答：刻度将在 %1 秒后确定</translation>
    </message>
    <message>
        <source>AC RMS</source>
        <translation>交流有效值</translation>
    </message>
    <message>
        <source>About Tracewell</source>
        <translation>关于 Tracewell</translation>
    </message>
    <message>
        <source>Acquisition mode and averaging</source>
        <translation>采集方式与平均</translation>
    </message>
    <message>
        <source>Advanced trigger: Delay</source>
        <translation>高级触发：延迟</translation>
    </message>
    <message>
        <source>Advanced trigger: Event</source>
        <translation>高级触发：事件</translation>
    </message>
    <message>
        <source>Advanced trigger: Level</source>
        <translation>高级触发：电平</translation>
    </message>
    <message>
        <source>Advanced trigger: Mode</source>
        <translation>高级触发：方式</translation>
    </message>
    <message>
        <source>Advanced trigger: Type</source>
        <translation>高级触发：类型</translation>
    </message>
    <message>
        <source>Age of the traces</source>
        <translation>波形的新旧</translation>
    </message>
    <message>
        <source>All of channel 1</source>
        <translation>通道 1 全选</translation>
    </message>
    <message>
        <source>All of channel 2</source>
        <translation>通道 2 全选</translation>
    </message>
    <message>
        <source>Amplitude</source>
        <translation>幅度</translation>
    </message>
    <message>
        <source>Amplitude: high level less low level</source>
        <translation>幅度：高电平减低电平</translation>
    </message>
    <message>
        <source>An error has stopped the acquisition</source>
        <translation>采集因错误而停止</translation>
    </message>
    <message>
        <source>Answers that did not end in time: %1 in a minute</source>
        <translation>未按时结束的应答：一分钟内 %1 个</translation>
    </message>
    <message>
        <source>Attenuation of the probe</source>
        <translation>探头衰减比</translation>
    </message>
    <message>
        <source>Autoset</source>
        <translation>正在自动设置</translation>
    </message>
    <message>
        <source>Autoset: the scales are not known until it is over</source>
        <translation>自动设置：结束之前刻度未知</translation>
    </message>
    <message>
        <source>Bandwidth limit against noise</source>
        <translation>限制带宽以抑制噪声</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>底值</translation>
    </message>
    <message>
        <source>Before it: %1</source>
        <translation>在此之前：%1</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>响铃</translation>
    </message>
    <message>
        <source>Both channels</source>
        <translation>两个通道</translation>
    </message>
    <message>
        <source>Brightness of the grid on the instrument, in percent</source>
        <translation>仪器屏幕上网格的亮度（百分比）</translation>
    </message>
    <message>
        <source>Brightness of the screen of the instrument</source>
        <translation>仪器屏幕的亮度</translation>
    </message>
    <message>
        <source>Brightness of the traces on the instrument, in percent</source>
        <translation>仪器屏幕上波形的亮度（百分比）</translation>
    </message>
    <message>
        <source>Bytes that nobody asked for: %1 in a minute</source>
        <translation>未经请求的字节：一分钟内 %1 个</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>Channel %1</source>
        <translation>通道 %1</translation>
    </message>
    <message>
        <source>Channel is displayed</source>
        <translation>显示该通道</translation>
    </message>
    <message>
        <source>Channel of the voltage read-out</source>
        <translation>电压读数所用的通道</translation>
    </message>
    <message>
        <source>Channel to measure</source>
        <translation>要测量的通道</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>Choose and run measurements</source>
        <translation>选择并执行测量</translation>
    </message>
    <message>
        <source>Choose from the list of commands</source>
        <translation>从命令列表中选择</translation>
    </message>
    <message>
        <source>Choose what is measured first</source>
        <translation>请先选择测量项</translation>
    </message>
    <message>
        <source>Chooses the file. A file with the same columns is continued</source>
        <translation>选择文件。列相同的文件会继续写入</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Click or drag: a record. Shift + drag: a stretch, Esc: none. Wheel: zoom. Arrow keys, Page Up and Down, Home, End: step. Dotted line: a gap</source>
        <translation>单击或拖动：选记录。Shift+拖动：选区段，Esc：取消区段。滚轮：缩放。方向键、Page Up/Down、Home、End：逐条移动。虚线：中断</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Colour behind the traces</source>
        <translation>波形的背景颜色</translation>
    </message>
    <message>
        <source>Colour of the grid</source>
        <translation>网格的颜色</translation>
    </message>
    <message>
        <source>Colour of the trace</source>
        <translation>波形的颜色</translation>
    </message>
    <message>
        <source>Colours and styles of the traces</source>
        <translation>波形的颜色与样式</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>命令行</translation>
    </message>
    <message>
        <source>Command line: Enter sends</source>
        <translation>命令行：按回车键发送</translation>
    </message>
    <message>
        <source>Commands of the instrument</source>
        <translation>仪器的命令</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>已复制</translation>
    </message>
    <message>
        <source>Copies the picture and its values for other programs (Ctrl+C)</source>
        <translation>复制图像及其数值供其他程序使用 (Ctrl+C)</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy the picture</source>
        <translation>复制图像</translation>
    </message>
    <message>
        <source>Copy the values</source>
        <translation>复制数值</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Coupling</source>
        <translation>耦合</translation>
    </message>
    <message>
        <source>Coupling of the input</source>
        <translation>输入耦合</translation>
    </message>
    <message>
        <source>Coupling, probe, inversion and bandwidth limit of channel 1</source>
        <translation>通道 1 的耦合、探头、反相与带宽限制</translation>
    </message>
    <message>
        <source>Coupling, probe, inversion and bandwidth limit of channel 2</source>
        <translation>通道 2 的耦合、探头、反相与带宽限制</translation>
    </message>
    <message>
        <source>Cursors</source>
        <translation>光标</translation>
    </message>
    <message>
        <source>Cursors across</source>
        <translation>横轴光标</translation>
    </message>
    <message>
        <source>Cursors off</source>
        <translation>关闭光标</translation>
    </message>
    <message>
        <source>Cursors up</source>
        <translation>纵轴光标</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Data bits of a byte</source>
        <translation>每字节的数据位</translation>
    </message>
    <message>
        <source>Delay to CH1</source>
        <translation>对 CH1 延迟</translation>
    </message>
    <message>
        <source>Description of the chosen waveform</source>
        <translation>所选波形的说明</translation>
    </message>
    <message>
        <source>Device of the port</source>
        <translation>端口对应的设备</translation>
    </message>
    <message>
        <source>Display channel 1</source>
        <translation>显示通道 1</translation>
    </message>
    <message>
        <source>Display channel 2</source>
        <translation>显示通道 2</translation>
    </message>
    <message>
        <source>Divisions across: the time base is not known</source>
        <translation>横轴以格为单位：时基未知</translation>
    </message>
    <message>
        <source>Dots at the samples</source>
        <translation>在采样点处画点</translation>
    </message>
    <message>
        <source>Double click: the error log</source>
        <translation>双击：打开错误日志</translation>
    </message>
    <message>
        <source>Drawn as</source>
        <translation>显示方式</translation>
    </message>
    <message>
        <source>Draws each of the last 20 records, the older the paler</source>
        <translation>绘出最近 20 条记录，越旧越淡</translation>
    </message>
    <message>
        <source>Draws the lowest and highest value of all these records</source>
        <translation>绘出这些记录的最低值和最高值</translation>
    </message>
    <message>
        <source>Draws the mean of all these records</source>
        <translation>绘出这些记录的平均值</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>驱动器</translation>
    </message>
    <message>
        <source>Duty</source>
        <translation>占空比</translation>
    </message>
    <message>
        <source>Empty the log</source>
        <translation>清空日志</translation>
    </message>
    <message>
        <source>Ends the log; the file is whole</source>
        <translation>结束日志；文件完整</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>包络</translation>
    </message>
    <message>
        <source>Error Log</source>
        <translation>错误日志</translation>
    </message>
    <message>
        <source>Error log</source>
        <translation>错误日志</translation>
    </message>
    <message>
        <source>Error log: %1 new</source>
        <translation>错误日志：%1 条新</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Export stretch…</source>
        <translation>导出区段…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>导出…</translation>
    </message>
    <message>
        <source>Fading</source>
        <translation>余辉</translation>
    </message>
    <message>
        <source>Fall time</source>
        <translation>下降时间</translation>
    </message>
    <message>
        <source>Flat top</source>
        <translation>平顶窗</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Folders; double click or Enter opens</source>
        <translation>文件夹；双击或按回车键打开</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>跟随</translation>
    </message>
    <message>
        <source>Format of the picture file</source>
        <translation>图片文件的格式</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>频率</translation>
    </message>
    <message>
        <source>Frequency Reject</source>
        <translation>频率抑制</translation>
    </message>
    <message>
        <source>Goes to a pinned record; it stays when others go</source>
        <translation>转到固定的记录；其他记录移出时它会保留</translation>
    </message>
    <message>
        <source>Goes with the newest record (F)</source>
        <translation>跟随最新的记录 (F)</translation>
    </message>
    <message>
        <source>Graph of the record</source>
        <translation>记录图形</translation>
    </message>
    <message>
        <source>Hann</source>
        <translation>汉宁窗</translation>
    </message>
    <message>
        <source>Hann tells close frequencies apart, flat top shows true levels</source>
        <translation>汉宁窗可分辨相近频率，平顶窗显示准确电平</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>高对比度</translation>
    </message>
    <message>
        <source>High level</source>
        <translation>高电平</translation>
    </message>
    <message>
        <source>Highest</source>
        <translation>最高</translation>
    </message>
    <message>
        <source>Highest value</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Horizontal position in divisions</source>
        <translation>水平位置（格）</translation>
    </message>
    <message>
        <source>Horizontal position in divisions; double click for zero</source>
        <translation>水平位置（格）；双击归零</translation>
    </message>
    <message>
        <source>How many records before this one belong to the picture; a spectrum is their mean</source>
        <translation>此记录之前有多少条一并显示；频谱为其平均</translation>
    </message>
    <message>
        <source>How records are taken</source>
        <translation>记录的采集方式</translation>
    </message>
    <message>
        <source>How records are taken; type Average for averaging</source>
        <translation>记录的采集方式；要取平均请键入 Average</translation>
    </message>
    <message>
        <source>How the trace looks</source>
        <translation>波形的外观</translation>
    </message>
    <message>
        <source>In use by another program: %1</source>
        <translation>被其他程序占用：%1</translation>
    </message>
    <message>
        <source>In use: %1. The line settings of the setup: %2</source>
        <translation>正在使用：%1。设置中的线路参数：%2</translation>
    </message>
    <message>
        <source>In use: %1. The setup: %2 (OK in the RS-232 dialog applies it)</source>
        <translation>正在使用：%1。设置中：%2（在 RS-232 对话框中按“确定”生效）</translation>
    </message>
    <message>
        <source>It lies over the live traces now</source>
        <translation>现已叠加在实时波形上</translation>
    </message>
    <message>
        <source>It may be the reply to another question</source>
        <translation>这可能是对另一个查询的应答</translation>
    </message>
    <message>
        <source>Keep what has been set</source>
        <translation>保留已设定的值</translation>
    </message>
    <message>
        <source>Keeps this record, under the name, when others go</source>
        <translation>以此名称保留此记录，其他记录移出时也不丢失</translation>
    </message>
    <message>
        <source>Lay a data file over the traces</source>
        <translation>将数据文件叠加到波形上</translation>
    </message>
    <message>
        <source>Lay a saved waveform over the traces</source>
        <translation>将已保存的波形叠加到波形上</translation>
    </message>
    <message>
        <source>Lays what is drawn over the live traces, as Load does</source>
        <translation>将所绘波形叠加到实时波形上，如同加载</translation>
    </message>
    <message>
        <source>Left out, with scales that are not known: %1</source>
        <translation>因刻度未知而略过：%1</translation>
    </message>
    <message>
        <source>Let go</source>
        <translation>取消固定</translation>
    </message>
    <message>
        <source>Let the instrument find its settings</source>
        <translation>让仪器自动找到合适的设置</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>电平</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>许可证</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Like the desktop</source>
        <translation>跟随桌面</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>限值</translation>
    </message>
    <message>
        <source>Limits:</source>
        <translation>限值：</translation>
    </message>
    <message>
        <source>Line only</source>
        <translation>仅画线</translation>
    </message>
    <message>
        <source>Line rate in bits per second</source>
        <translation>线路速率（比特/秒）</translation>
    </message>
    <message>
        <source>Lit while the panel of the instrument is locked</source>
        <translation>仪器面板锁定时点亮</translation>
    </message>
    <message>
        <source>Load the trace of channel 1</source>
        <translation>读取通道 1 的波形</translation>
    </message>
    <message>
        <source>Load the trace of channel 2</source>
        <translation>读取通道 2 的波形</translation>
    </message>
    <message>
        <source>Loaded %1</source>
        <translation>已读取 %1</translation>
    </message>
    <message>
        <source>Loaded in the place of %1</source>
        <translation>已取代 %1</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Lost: %1</source>
        <translation>丢失：%1</translation>
    </message>
    <message>
        <source>Low level</source>
        <translation>低电平</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>最低</translation>
    </message>
    <message>
        <source>Lowest value</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>Manual and keys</source>
        <translation>手册与按键</translation>
    </message>
    <message>
        <source>Math may be on: choose an entry in its box to be sure</source>
        <translation>数学运算可能已开启：请在其列表中选择一项以便确定</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>平均值</translation>
    </message>
    <message>
        <source>Measure nothing</source>
        <translation>不测量</translation>
    </message>
    <message>
        <source>Measure time</source>
        <translation>测量时间</translation>
    </message>
    <message>
        <source>Measure voltage</source>
        <translation>测量电压</translation>
    </message>
    <message>
        <source>Measure what is ticked</source>
        <translation>测量已勾选的项目</translation>
    </message>
    <message>
        <source>Measured from the samples; choose a line for its statistics</source>
        <translation>由采样点测得；选择一行查看其统计</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>测量</translation>
    </message>
    <message>
        <source>Measurement 1</source>
        <translation>测量值 1</translation>
    </message>
    <message>
        <source>Measurement 10</source>
        <translation>测量值 10</translation>
    </message>
    <message>
        <source>Measurement 11</source>
        <translation>测量值 11</translation>
    </message>
    <message>
        <source>Measurement 12</source>
        <translation>测量值 12</translation>
    </message>
    <message>
        <source>Measurement 13</source>
        <translation>测量值 13</translation>
    </message>
    <message>
        <source>Measurement 14</source>
        <translation>测量值 14</translation>
    </message>
    <message>
        <source>Measurement 15</source>
        <translation>测量值 15</translation>
    </message>
    <message>
        <source>Measurement 16</source>
        <translation>测量值 16</translation>
    </message>
    <message>
        <source>Measurement 2</source>
        <translation>测量值 2</translation>
    </message>
    <message>
        <source>Measurement 3</source>
        <translation>测量值 3</translation>
    </message>
    <message>
        <source>Measurement 4</source>
        <translation>测量值 4</translation>
    </message>
    <message>
        <source>Measurement 5</source>
        <translation>测量值 5</translation>
    </message>
    <message>
        <source>Measurement 6</source>
        <translation>测量值 6</translation>
    </message>
    <message>
        <source>Measurement 7</source>
        <translation>测量值 7</translation>
    </message>
    <message>
        <source>Measurement 8</source>
        <translation>测量值 8</translation>
    </message>
    <message>
        <source>Measurement 9</source>
        <translation>测量值 9</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>测量</translation>
    </message>
    <message>
        <source>Measurements of each record into a file, for hours (Ctrl+L)</source>
        <translation>把每条记录的测量值写入文件，可持续数小时 (Ctrl+L)</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>正在测量</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>方式</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Name of the pinned record</source>
        <translation>固定记录的名称</translation>
    </message>
    <message>
        <source>Name of the plot</source>
        <translation>曲线的名称</translation>
    </message>
    <message>
        <source>New lines in the error log</source>
        <translation>错误日志中有新条目</translation>
    </message>
    <message>
        <source>Next cursor mode</source>
        <translation>下一种光标方式</translation>
    </message>
    <message>
        <source>No answer to %1</source>
        <translation>%1 无应答</translation>
    </message>
    <message>
        <source>No answer to the last %1 questions</source>
        <translation>最近 %1 个查询无应答</translation>
    </message>
    <message>
        <source>No cursors</source>
        <translation>无光标</translation>
    </message>
    <message>
        <source>No more records can be pinned</source>
        <translation>不能再固定更多记录</translation>
    </message>
    <message>
        <source>No program here shows the manual. It is %1</source>
        <translation>此处没有可显示手册的程序。手册位于 %1</translation>
    </message>
    <message>
        <source>No record for %1 s</source>
        <translation>已有 %1 秒没有记录</translation>
    </message>
    <message>
        <source>No record yet: they are kept as they come</source>
        <translation>尚无记录：记录到达时即被保存</translation>
    </message>
    <message>
        <source>No reference is free: press %1 first</source>
        <translation>没有空闲的参考波形：请先按 %1</translation>
    </message>
    <message>
        <source>No reference is free: remove one in the panel first</source>
        <translation>没有空闲的参考波形：请先在面板中移除一个</translation>
    </message>
    <message>
        <source>No room for all of %1: press %2 first</source>
        <translation>%1 无法全部显示：请先按“%2”</translation>
    </message>
    <message>
        <source>No rows while the traces are stopped</source>
        <translation>波形停止期间没有新行</translation>
    </message>
    <message>
        <source>No set is chosen</source>
        <translation>未选择波形组</translation>
    </message>
    <message>
        <source>No window</source>
        <translation>不加窗</translation>
    </message>
    <message>
        <source>Noise Reject</source>
        <translation>噪声抑制</translation>
    </message>
    <message>
        <source>None of channel 1</source>
        <translation>通道 1 全不选</translation>
    </message>
    <message>
        <source>None of channel 2</source>
        <translation>通道 2 全不选</translation>
    </message>
    <message>
        <source>Not a limit: %1. Write them as vpp &gt; 1.2 V; freq &lt; 990 Hz</source>
        <translation>不是限值：%1。请写成 vpp &gt; 1.2 V; freq &lt; 990 Hz</translation>
    </message>
    <message>
        <source>Not present: %1</source>
        <translation>不存在：%1</translation>
    </message>
    <message>
        <source>Not sent: the text has more than one line</source>
        <translation>未发送：文本不止一行</translation>
    </message>
    <message>
        <source>Not written: records have gone meanwhile; pin what you want to keep</source>
        <translation>未写入：期间有记录已移除；请固定要保留的记录</translation>
    </message>
    <message>
        <source>Nothing pinned</source>
        <translation>没有固定记录</translation>
    </message>
    <message>
        <source>Nothing to export: no record of this channel is there</source>
        <translation>没有可导出的内容：其中没有此通道的记录</translation>
    </message>
    <message>
        <source>Nothing to export: the scales of these records are not known</source>
        <translation>没有可导出的内容：这些记录的刻度未知</translation>
    </message>
    <message>
        <source>Nothing will be kept. %1</source>
        <translation>不会保存任何内容。%1</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Number of the port</source>
        <translation>端口号</translation>
    </message>
    <message>
        <source>Number of the port; 0 is the simulated instrument</source>
        <translation>端口号；0 为仿真仪器</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Of the stretch that is marked, else of all records</source>
        <translation>所标区段的统计，未标时为全部记录</translation>
    </message>
    <message>
        <source>Open the error log</source>
        <translation>打开错误日志</translation>
    </message>
    <message>
        <source>Overshoot</source>
        <translation>过冲</translation>
    </message>
    <message>
        <source>Parameter of the command</source>
        <translation>命令的参数</translation>
    </message>
    <message>
        <source>Parity bit of a byte</source>
        <translation>每字节的校验位</translation>
    </message>
    <message>
        <source>Peak to peak</source>
        <translation>峰峰值</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>周期</translation>
    </message>
    <message>
        <source>Phase to CH1</source>
        <translation>对 CH1 相位</translation>
    </message>
    <message>
        <source>Pick the time per division</source>
        <translation>选择每格时间</translation>
    </message>
    <message>
        <source>Pick the volts per division of channel 1</source>
        <translation>选择通道 1 的每格伏数</translation>
    </message>
    <message>
        <source>Pick the volts per division of channel 2</source>
        <translation>选择通道 2 的每格伏数</translation>
    </message>
    <message>
        <source>Picture of the chosen waveform</source>
        <translation>所选波形的图片</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>固定</translation>
    </message>
    <message>
        <source>Pinned records</source>
        <translation>固定的记录</translation>
    </message>
    <message>
        <source>Pinned: %1</source>
        <translation>已固定：%1</translation>
    </message>
    <message>
        <source>Pins each record that is beyond a limit</source>
        <translation>固定每条超限的记录</translation>
    </message>
    <message>
        <source>Positive width in percent of the period</source>
        <translation>正脉宽占周期的百分比</translation>
    </message>
    <message>
        <source>Print the graph</source>
        <translation>打印图形</translation>
    </message>
    <message>
        <source>Print the picture</source>
        <translation>打印图片</translation>
    </message>
    <message>
        <source>Print the report</source>
        <translation>打印报告</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>已打印</translation>
    </message>
    <message>
        <source>Printed to %1</source>
        <translation>已打印到 %1</translation>
    </message>
    <message>
        <source>RMS</source>
        <translation>有效值</translation>
    </message>
    <message>
        <source>Read the instrument again with the present port settings</source>
        <translation>按当前端口设置重新读取仪器</translation>
    </message>
    <message>
        <source>Read the instrument, then start and stop the traces</source>
        <translation>读取仪器，然后开始和停止波形</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>记录仪</translation>
    </message>
    <message>
        <source>Recorder's log: %1</source>
        <translation>记录仪日志：%1</translation>
    </message>
    <message>
        <source>Recorder's log: %1 cannot be written. %2. Give them up?</source>
        <translation>记录仪日志：%1 无法写入。%2。放弃它们吗？</translation>
    </message>
    <message>
        <source>Records along time</source>
        <translation>按时间排列的记录</translation>
    </message>
    <message>
        <source>Records before this one</source>
        <translation>此前的记录</translation>
    </message>
    <message>
        <source>Records in an average</source>
        <translation>每次平均的记录数</translation>
    </message>
    <message>
        <source>Records stay short: %1 of %2 bytes came</source>
        <translation>记录不完整：%2 个字节中只收到 %1 个</translation>
    </message>
    <message>
        <source>Records that came too late: %1 in a minute</source>
        <translation>来得太晚的记录：一分钟内 %1 个</translation>
    </message>
    <message>
        <source>Records that did not come: %1 in a minute</source>
        <translation>没有到达的记录：一分钟内 %1 个</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>移除 %1</translation>
    </message>
    <message>
        <source>Remove the loaded waveforms</source>
        <translation>移除已读取的波形</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Replies and records</source>
        <translation>应答与记录</translation>
    </message>
    <message>
        <source>Rise time</source>
        <translation>上升时间</translation>
    </message>
    <message>
        <source>Root mean square</source>
        <translation>均方根值</translation>
    </message>
    <message>
        <source>Rows beyond a limit name it. The short names stand in the list of measurements</source>
        <translation>超限的行会写明限值。简称见测量列表</translation>
    </message>
    <message>
        <source>Run or stop the acquisition of the instrument itself</source>
        <translation>运行或停止仪器自身的采集</translation>
    </message>
    <message>
        <source>Run the quick time measurements</source>
        <translation>执行快速时间测量</translation>
    </message>
    <message>
        <source>Run-time error %1</source>
        <translation>运行时错误 %1</translation>
    </message>
    <message>
        <source>SIMULATED</source>
        <translation>仿真信号</translation>
    </message>
    <message>
        <source>Samples as dots</source>
        <translation>采样显示为点</translation>
    </message>
    <message>
        <source>Samples joined by lines</source>
        <translation>采样以线相连</translation>
    </message>
    <message>
        <source>Samples of a record</source>
        <translation>每个记录的采样数</translation>
    </message>
    <message>
        <source>Save as a waveform set</source>
        <translation>另存为波形文件组</translation>
    </message>
    <message>
        <source>Save picture and data</source>
        <translation>保存图片与数据</translation>
    </message>
    <message>
        <source>Save the log and close</source>
        <translation>保存日志并关闭</translation>
    </message>
    <message>
        <source>Save the report as a file</source>
        <translation>将报告保存为文件</translation>
    </message>
    <message>
        <source>Save the setup and close</source>
        <translation>保存设置并关闭</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>已保存 %1</translation>
    </message>
    <message>
        <source>Saved %1, %2 and %3 in %4</source>
        <translation>已将 %1、%2 和 %3 保存到 %4</translation>
    </message>
    <message>
        <source>Saved waveforms</source>
        <translation>已保存的波形</translation>
    </message>
    <message>
        <source>Saves this record as a waveform set, which Load in the panel shows (Ctrl+S)</source>
        <translation>将此记录另存为波形，可在面板中读取 (Ctrl+S)</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>保存…</translation>
    </message>
    <message>
        <source>Scales that are not the traces'</source>
        <translation>并非波形所用的刻度</translation>
    </message>
    <message>
        <source>Send the command</source>
        <translation>发送命令</translation>
    </message>
    <message>
        <source>Set it and stay open, to try others</source>
        <translation>设定并保持打开，以便试用其他值</translation>
    </message>
    <message>
        <source>Setup loaded from %1</source>
        <translation>已从 %1 读取设置</translation>
    </message>
    <message>
        <source>Setup saved to %1</source>
        <translation>设置已保存到 %1</translation>
    </message>
    <message>
        <source>Show in the panel</source>
        <translation>在面板中显示</translation>
    </message>
    <message>
        <source>Slope</source>
        <translation>斜率</translation>
    </message>
    <message>
        <source>Sounds the bell at each record that is beyond a limit</source>
        <translation>每有超限记录即响铃</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>信源</translation>
    </message>
    <message>
        <source>Source, mode, slope and coupling of the trigger</source>
        <translation>触发的信源、方式、斜率与耦合</translation>
    </message>
    <message>
        <source>Spectrum</source>
        <translation>频谱</translation>
    </message>
    <message>
        <source>Start the log…</source>
        <translation>开始日志…</translation>
    </message>
    <message>
        <source>State of the acquisition</source>
        <translation>采集状态</translation>
    </message>
    <message>
        <source>State of the connection</source>
        <translation>连接状态</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>统计</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Std deviation</source>
        <translation>标准差</translation>
    </message>
    <message>
        <source>Stop bits behind a byte</source>
        <translation>每字节后的停止位</translation>
    </message>
    <message>
        <source>Stop the log</source>
        <translation>停止日志</translation>
    </message>
    <message>
        <source>Stopped: press %1 to go on</source>
        <translation>已停止：按 %1 继续</translation>
    </message>
    <message>
        <source>Sum or difference of the channels</source>
        <translation>通道之和或差</translation>
    </message>
    <message>
        <source>Take all texts away</source>
        <translation>去掉全部文字</translation>
    </message>
    <message>
        <source>Take the last text away</source>
        <translation>去掉最后一处文字</translation>
    </message>
    <message>
        <source>Text to write onto the picture</source>
        <translation>要写在图片上的文字</translation>
    </message>
    <message>
        <source>The .csv is empty: no whole record of %1</source>
        <translation>.csv 为空：没有 %1 的完整记录</translation>
    </message>
    <message>
        <source>The acquisition has stopped: %1</source>
        <translation>采集已停止：%1</translation>
    </message>
    <message>
        <source>The channels that are shown, stepped through and measured</source>
        <translation>显示、逐条浏览和测量的通道</translation>
    </message>
    <message>
        <source>The columns of the log</source>
        <translation>日志的列</translation>
    </message>
    <message>
        <source>The connection is lost</source>
        <translation>连接已中断</translation>
    </message>
    <message>
        <source>The connection is lost: %1</source>
        <translation>连接已中断：%1</translation>
    </message>
    <message>
        <source>The cursors were read in another scale</source>
        <translation>光标读数是按另一档位得出的</translation>
    </message>
    <message>
        <source>The data file</source>
        <translation>数据文件</translation>
    </message>
    <message>
        <source>The disk is full; waiting in memory: %1</source>
        <translation>磁盘已满；在内存中等待写入：%1</translation>
    </message>
    <message>
        <source>The file is not as a panel saves it: its trace may be wrong</source>
        <translation>此文件与面板保存的不同：其波形可能有误</translation>
    </message>
    <message>
        <source>The folder that is shown</source>
        <translation>当前显示的文件夹</translation>
    </message>
    <message>
        <source>The instrument is being read</source>
        <translation>正在读取仪器</translation>
    </message>
    <message>
        <source>The instrument is busy: %1</source>
        <translation>仪器正忙：%1</translation>
    </message>
    <message>
        <source>The instrument is stopped: press %1</source>
        <translation>仪器已停止：按 %1</translation>
    </message>
    <message>
        <source>The instrument is stopped: press %1 twice</source>
        <translation>仪器已停止：按两次 %1</translation>
    </message>
    <message>
        <source>The instrument may have another value</source>
        <translation>仪器中的值可能不同</translation>
    </message>
    <message>
        <source>The knob stands there already: turn it away and back to send its scale</source>
        <translation>旋钮已在该处：转开再转回才会发送其档位</translation>
    </message>
    <message>
        <source>The last question had no answer: press %1</source>
        <translation>上一个查询无应答：请按“%1”</translation>
    </message>
    <message>
        <source>The log goes on</source>
        <translation>日志继续记录</translation>
    </message>
    <message>
        <source>The log has ended</source>
        <translation>日志已结束</translation>
    </message>
    <message>
        <source>The old %1 is kept as %2</source>
        <translation>原来的 %1 已保留为 %2</translation>
    </message>
    <message>
        <source>The picture to save</source>
        <translation>要保存的图片</translation>
    </message>
    <message>
        <source>The picture's name must end in png, jpg, bmp, gif, pcx or tif</source>
        <translation>图片名称须以 png、jpg、bmp、gif、pcx 或 tif 结尾</translation>
    </message>
    <message>
        <source>The port in use</source>
        <translation>正在使用的端口</translation>
    </message>
    <message>
        <source>The product</source>
        <translation>产品</translation>
    </message>
    <message>
        <source>The report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>The same sweep was fetched: %1</source>
        <translation>同一次扫描已读取：%1</translation>
    </message>
    <message>
        <source>The scales are not known: press %1 to read them</source>
        <translation>刻度未知：按 %1 读取</translation>
    </message>
    <message>
        <source>The scales are not known: press %1 to read them, then F5 to go on</source>
        <translation>刻度未知：按 %1 读取，再按 F5 继续</translation>
    </message>
    <message>
        <source>The scales may be those of another instrument: press %1 to read them</source>
        <translation>档位可能属于另一台仪器：请按“%1”重新读取</translation>
    </message>
    <message>
        <source>The setup could not be saved to %1.</source>
        <translation>设置无法保存到 %1。</translation>
    </message>
    <message>
        <source>The unit of the levels</source>
        <translation>电平单位</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>There is no such port</source>
        <translation>没有这个端口</translation>
    </message>
    <message>
        <source>These traces are of an earlier connection</source>
        <translation>这些波形来自之前的连接</translation>
    </message>
    <message>
        <source>This record alone</source>
        <translation>仅此记录</translation>
    </message>
    <message>
        <source>This record is cut: a set needs a whole one</source>
        <translation>此记录不完整：需要完整的记录</translation>
    </message>
    <message>
        <source>This record may go with the others again</source>
        <translation>此记录可再随其他记录移出</translation>
    </message>
    <message>
        <source>This version has new files beside those that you have changed: %1</source>
        <translation>此版本的新文件已放在您修改过的文件旁边：%1</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Time of the falling edge</source>
        <translation>下降时间</translation>
    </message>
    <message>
        <source>Time of the rising edge</source>
        <translation>上升时间</translation>
    </message>
    <message>
        <source>Time per division</source>
        <translation>每格时间</translation>
    </message>
    <message>
        <source>Time per division: drag, wheel, arrow keys, or click a value</source>
        <translation>每格时间：拖动、滚轮、方向键，或单击某个值</translation>
    </message>
    <message>
        <source>Time that the instrument takes</source>
        <translation>仪器所需的时间</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>顶值</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>波形</translation>
    </message>
    <message>
        <source>Trace upside down</source>
        <translation>波形上下颠倒</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>波形</translation>
    </message>
    <message>
        <source>Traces paused for %1</source>
        <translation>曲线暂停：%1</translation>
    </message>
    <message>
        <source>Traces: drag the cursors, or move them with the arrow keys; C changes the cursor. Double click or E: larger, Escape: back</source>
        <translation>波形：用鼠标拖动光标，或用方向键移动；C 键切换光标。双击或 E 键放大，Esc 键还原</translation>
    </message>
    <message>
        <source>Trigger level in volts</source>
        <translation>触发电平（伏）</translation>
    </message>
    <message>
        <source>Trigger level in volts; double click for zero</source>
        <translation>触发电平（伏）；双击归零</translation>
    </message>
    <message>
        <source>Two cursors with their distance: drag them, or use the arrow keys in the graph</source>
        <translation>两个光标及其间距：可拖动，或在图形中用方向键</translation>
    </message>
    <message>
        <source>V/div not known</source>
        <translation>V/div 未知</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Vertical position of channel 1 in divisions</source>
        <translation>通道 1 的垂直位置（格）</translation>
    </message>
    <message>
        <source>Vertical position of channel 1 in divisions; double click for zero</source>
        <translation>通道 1 的垂直位置（格）；双击归零</translation>
    </message>
    <message>
        <source>Vertical position of channel 2 in divisions</source>
        <translation>通道 2 的垂直位置（格）</translation>
    </message>
    <message>
        <source>Vertical position of channel 2 in divisions; double click for zero</source>
        <translation>通道 2 的垂直位置（格）；双击归零</translation>
    </message>
    <message>
        <source>Volts per division of channel 1</source>
        <translation>通道 1 的每格伏数</translation>
    </message>
    <message>
        <source>Volts per division of channel 1: drag, wheel, arrow keys, or click a value</source>
        <translation>通道 1 的每格伏数：拖动、滚轮、方向键，或单击某个值</translation>
    </message>
    <message>
        <source>Volts per division of channel 2</source>
        <translation>通道 2 的每格伏数</translation>
    </message>
    <message>
        <source>Volts per division of channel 2: drag, wheel, arrow keys, or click a value</source>
        <translation>通道 2 的每格伏数：拖动、滚轮、方向键，或单击某个值</translation>
    </message>
    <message>
        <source>Waiting for the answer to %1</source>
        <translation>正在等待 %1 的应答</translation>
    </message>
    <message>
        <source>Waiting in memory: %1. %2</source>
        <translation>在内存中等待写入：%1。%2</translation>
    </message>
    <message>
        <source>What is drawn of the records</source>
        <translation>记录的绘制内容</translation>
    </message>
    <message>
        <source>What is set</source>
        <translation>设定对象</translation>
    </message>
    <message>
        <source>What it shows</source>
        <translation>图中所示内容</translation>
    </message>
    <message>
        <source>What the command does</source>
        <translation>命令的作用</translation>
    </message>
    <message>
        <source>When the last record of each channel came</source>
        <translation>各通道最近一次收到记录的时间</translation>
    </message>
    <message>
        <source>Who saves it</source>
        <translation>保存者</translation>
    </message>
    <message>
        <source>Why the set is not loaded</source>
        <translation>波形组未读取的原因</translation>
    </message>
    <message>
        <source>Width of the negative pulse</source>
        <translation>负脉宽</translation>
    </message>
    <message>
        <source>Width of the positive pulse</source>
        <translation>正脉宽</translation>
    </message>
    <message>
        <source>Window of the spectrum</source>
        <translation>频谱窗函数</translation>
    </message>
    <message>
        <source>With the last %1</source>
        <translation>连同最近 %1 条</translation>
    </message>
    <message>
        <source>With the one before</source>
        <translation>连同前一条</translation>
    </message>
    <message>
        <source>Without CH%1, which is of another sweep</source>
        <translation>不含 CH%1：属于另一次扫描</translation>
    </message>
    <message>
        <source>Write the shown record to text.csv</source>
        <translation>将显示的记录写入 text.csv</translation>
    </message>
    <message>
        <source>Write the text where the picture is clicked</source>
        <translation>在图片上单击处写入文字</translation>
    </message>
    <message>
        <source>Writes the marked stretch, else this record, as CSV in volts and seconds (Ctrl+E)</source>
        <translation>将所标区段（未标时为此记录）以伏特和秒写成 CSV (Ctrl+E)</translation>
    </message>
    <message>
        <source>X-Y</source>
        <translation>X-Y</translation>
    </message>
    <message>
        <source>X-Y needs both channels of one sweep: display both, press Run/Stop, and wait for both</source>
        <translation>X-Y 需要同一次扫描的两个通道：显示两者，按 Run/Stop，等待两者到达</translation>
    </message>
    <message>
        <source>another port</source>
        <translation>另一端口</translation>
    </message>
    <message>
        <source>clipped</source>
        <translation>削波</translation>
    </message>
    <message>
        <source>flat</source>
        <translation>平直</translation>
    </message>
    <message>
        <source>from the zero of %1:</source>
        <translation>自 %1 的零点算起：</translation>
    </message>
    <message>
        <source>irregular</source>
        <translation>不规则</translation>
    </message>
    <message>
        <source>less than a period</source>
        <translation>不足一个周期</translation>
    </message>
    <message>
        <source>math, which has no volts</source>
        <translation>数学运算，无伏特值</translation>
    </message>
    <message>
        <source>more than 500 lines of data</source>
        <translation>数据超过 500 行</translation>
    </message>
    <message>
        <source>not certain</source>
        <translation>不确定</translation>
    </message>
    <message>
        <source>not of one sweep</source>
        <translation>非同一次扫描</translation>
    </message>
    <message>
        <source>nothing fetched</source>
        <translation>未读取</translation>
    </message>
    <message>
        <source>opened anew</source>
        <translation>重新打开</translation>
    </message>
    <message>
        <source>other period</source>
        <translation>周期不同</translation>
    </message>
    <message>
        <source>other scales</source>
        <translation>刻度不同</translation>
    </message>
    <message>
        <source>pinned</source>
        <translation>已固定</translation>
    </message>
    <message>
        <source>port %1</source>
        <translation>端口 %1</translation>
    </message>
    <message>
        <source>port %1 - %2</source>
        <translation>端口 %1 - %2</translation>
    </message>
    <message>
        <source>port %1, %2 baud %3</source>
        <translation>端口 %1，%2 波特 %3</translation>
    </message>
    <message>
        <source>record %1 of %2</source>
        <translation>第 %1 条，共 %2 条</translation>
    </message>
    <message>
        <source>record cut</source>
        <translation>记录不完整</translation>
    </message>
    <message>
        <source>s/div not known</source>
        <translation>s/div 未知</translation>
    </message>
    <message>
        <source>scale not known</source>
        <translation>刻度未知</translation>
    </message>
    <message>
        <source>simulated instrument</source>
        <translation>仿真仪器</translation>
    </message>
    <message>
        <source>stopped meanwhile</source>
        <translation>期间停止过</translation>
    </message>
    <message>
        <source>too few samples</source>
        <translation>采样点太少</translation>
    </message>
</context>
</TS>
