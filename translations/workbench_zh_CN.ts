<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AttributePane</name>
    <message>
        <source>Attributes</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>From Editor</source>
        <translation>从编辑器选取</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
</context>
<context>
    <name>CanvasBar</name>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Show the whole board</source>
        <translation>显示整块电路板</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>撤销：%1</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>重做：%1</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>适合窗口(&amp;F)</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>撤销(&amp;U) %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>重做(&amp;R) %1</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>适合窗口</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Deselect</source>
        <translation>取消选择</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>Dese&amp;lect</source>
        <translation>取消选择(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>已撤销：%1。</translation>
    </message>
    <message>
        <source>Redone: %1.</source>
        <translation>已重做：%1。</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>没有选中任何图元。</translation>
    </message>
    <message numerus="yes">
        <source>Deleted %n feature(s).</source>
        <translation>
            <numerusform>已删除 %n 个图元。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ComposeDialog</name>
    <message>
        <source>Number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>message %1 takes: %2</source>
        <translation>消息 %1 需要：%2</translation>
    </message>
    <message>
        <source>Message %1 was sent.</source>
        <translation>消息 %1 已发送。</translation>
    </message>
    <message>
        <source>Compose Message</source>
        <translation>编写消息</translation>
    </message>
    <message>
        <source>&amp;Code</source>
        <translation>代码(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Sender</source>
        <translation>发送方(&amp;S)</translation>
    </message>
    <message>
        <source>Payload</source>
        <translation>数据</translation>
    </message>
    <message>
        <source>&amp;Add Entry</source>
        <translation>添加条目(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Remove Entry</source>
        <translation>删除条目(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Extra word</source>
        <translation>附加字(&amp;E)</translation>
    </message>
    <message>
        <source>Se&amp;nd</source>
        <translation>发送(&amp;N)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>Documentation</name>
    <message>
        <source>Documentation</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>目录</translation>
    </message>
</context>
<context>
    <name>EditTools</name>
    <message>
        <source>No feature here.</source>
        <translation>此处没有图元。</translation>
    </message>
    <message>
        <source>%1 is for lines and arcs.</source>
        <translation>“%1”只用于线和弧。</translation>
    </message>
    <message>
        <source>Delete feature</source>
        <translation>删除图元</translation>
    </message>
    <message>
        <source>Delete to intersection</source>
        <translation>删除到交点</translation>
    </message>
    <message>
        <source>Invert feature</source>
        <translation>反转图元极性</translation>
    </message>
    <message>
        <source>Rotate feature</source>
        <translation>旋转图元</translation>
    </message>
    <message>
        <source>Mirror feature</source>
        <translation>镜像图元</translation>
    </message>
    <message>
        <source>Break line</source>
        <translation>打断线</translation>
    </message>
    <message>
        <source>Click a feature to delete it.</source>
        <translation>单击要删除的图元。</translation>
    </message>
    <message>
        <source>Click the part of a line to delete.</source>
        <translation>单击线上要删除的部分。</translation>
    </message>
    <message>
        <source>Click a feature to invert its polarity.</source>
        <translation>单击图元以反转其极性。</translation>
    </message>
    <message>
        <source>Click a feature to turn it by 90 degrees.</source>
        <translation>单击图元以旋转 90 度。</translation>
    </message>
    <message>
        <source>Click a feature to mirror it.</source>
        <translation>单击要镜像的图元。</translation>
    </message>
    <message>
        <source>Click a line where it should break.</source>
        <translation>单击线上要打断的位置。</translation>
    </message>
    <message>
        <source>Move feature</source>
        <translation>移动图元</translation>
    </message>
    <message>
        <source>Copy feature</source>
        <translation>复制图元</translation>
    </message>
    <message>
        <source>Click the new position; a right click cancels.</source>
        <translation>单击目标位置；右键单击取消。</translation>
    </message>
    <message>
        <source>Click a feature to move it.</source>
        <translation>单击要移动的图元。</translation>
    </message>
    <message>
        <source>Click a feature to copy it.</source>
        <translation>单击要复制的图元。</translation>
    </message>
    <message>
        <source>Click near the end of a line.</source>
        <translation>请单击线的端点附近。</translation>
    </message>
    <message>
        <source>Change line angle</source>
        <translation>改变线角度</translation>
    </message>
    <message>
        <source>Stretch line</source>
        <translation>拉伸线</translation>
    </message>
    <message>
        <source>Click near the line end to move.</source>
        <translation>单击要移动的线端点附近。</translation>
    </message>
    <message>
        <source>Click the new direction.</source>
        <translation>单击线的新方向。</translation>
    </message>
    <message>
        <source>Click the new position of the end.</source>
        <translation>单击端点的新位置。</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>&amp;New</source>
        <translation>新建(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>另存为(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>导出(&amp;E)…</translation>
    </message>
    <message>
        <source>Open a board file</source>
        <translation>打开电路板文件</translation>
    </message>
    <message>
        <source>Save the board as a file</source>
        <translation>将电路板保存为文件</translation>
    </message>
    <message>
        <source>Export the board as Gerber or as a picture</source>
        <translation>将电路板导出为 Gerber 或图片</translation>
    </message>
    <message>
        <source>Opened %1.</source>
        <translation>已打开 %1。</translation>
    </message>
    <message>
        <source>Wrote %1.</source>
        <translation>已写入 %1。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Cannot open the board</source>
        <translation>无法打开电路板</translation>
    </message>
    <message>
        <source>Cannot export the board</source>
        <translation>无法导出电路板</translation>
    </message>
    <message>
        <source>Cannot save the board</source>
        <translation>无法保存电路板</translation>
    </message>
    <message>
        <source>Opening %1...</source>
        <translation>正在打开 %1…</translation>
    </message>
    <message>
        <source>Exporting %1...</source>
        <translation>正在导出 %1…</translation>
    </message>
    <message>
        <source>Saving %1...</source>
        <translation>正在保存 %1…</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>已取消。</translation>
    </message>
    <message>
        <source>Cannot recover the changes</source>
        <translation>无法恢复更改</translation>
    </message>
    <message>
        <source>Recovering changes...</source>
        <translation>正在恢复更改…</translation>
    </message>
    <message>
        <source>Unknown Shapes</source>
        <translation>未知形状</translation>
    </message>
    <message>
        <source>the job file %1 is not there</source>
        <translation>料号文件 %1 不存在</translation>
    </message>
    <message>
        <source>the job file %1 cannot be opened while boards are changed</source>
        <translation>有电路板已更改时无法打开料号文件 %1</translation>
    </message>
    <message>
        <source>the job file %1 could not be opened</source>
        <translation>料号文件 %1 未能打开</translation>
    </message>
    <message>
        <source>the job file %1 has no such step</source>
        <translation>料号文件 %1 中没有该步骤</translation>
    </message>
    <message>
        <source>%1 has been changed</source>
        <translation>%1 已更改</translation>
    </message>
    <message>
        <source>it has not been read</source>
        <translation>未能读取</translation>
    </message>
</context>
<context>
    <name>FileErrors</name>
    <message>
        <source>must not be 0</source>
        <translation>不能为 0</translation>
    </message>
    <message>
        <source>must be a pair of numbers</source>
        <translation>必须是一对数字</translation>
    </message>
    <message>
        <source>a coordinate is ten metres or farther from 0</source>
        <translation>有坐标距 0 达十米或更远</translation>
    </message>
    <message>
        <source>must be more than 0</source>
        <translation>必须大于 0</translation>
    </message>
    <message>
        <source>the picture cannot be written</source>
        <translation>无法写入图片</translation>
    </message>
    <message>
        <source>is neither a layout nor a widget</source>
        <translation>既不是布局也不是控件</translation>
    </message>
    <message>
        <source>must not be empty</source>
        <translation>不能为空</translation>
    </message>
    <message>
        <source>belongs to the kind &quot;choice&quot; only</source>
        <translation>只属于种类“choice”</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>没有该文件</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>缺少 %1</translation>
    </message>
    <message>
        <source>no entry point %1</source>
        <translation>没有入口点 %1</translation>
    </message>
    <message>
        <source>gave no instance</source>
        <translation>未创建实例</translation>
    </message>
    <message>
        <source>the document</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>必须是对象</translation>
    </message>
    <message>
        <source>&quot;%1&quot; appears twice in one object</source>
        <translation>“%1”在同一对象中出现两次</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not belong to %2</source>
        <translation>“%1”不属于%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>缺少“%1”</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>必须是数组</translation>
    </message>
    <message>
        <source>an entry of %1</source>
        <translation>%1 的一项</translation>
    </message>
    <message>
        <source>must be a string</source>
        <translation>必须是字符串</translation>
    </message>
    <message>
        <source>&quot;%1&quot; appears twice</source>
        <translation>“%1”出现两次</translation>
    </message>
    <message>
        <source>must be true or false</source>
        <translation>必须是 true 或 false</translation>
    </message>
    <message>
        <source>must be a number</source>
        <translation>必须是数字</translation>
    </message>
    <message>
        <source>must be %1</source>
        <translation>必须是 %1</translation>
    </message>
    <message>
        <source>must be from %1 to %2</source>
        <translation>必须在 %1 到 %2 之间</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>必须是整数</translation>
    </message>
    <message>
        <source>is not one of </source>
        <translation>不是以下之一：</translation>
    </message>
    <message>
        <source>is not a canvas for this window</source>
        <translation>不是此窗口的画布</translation>
    </message>
    <message>
        <source>a board</source>
        <translation>电路板文件</translation>
    </message>
    <message>
        <source>a job file</source>
        <translation>料号文件</translation>
    </message>
    <message>
        <source>a message trace</source>
        <translation>消息记录</translation>
    </message>
    <message>
        <source>a session</source>
        <translation>会话文件</translation>
    </message>
    <message>
        <source>a Gerber file</source>
        <translation>Gerber 文件</translation>
    </message>
    <message>
        <source>a picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>this is %1, not %2</source>
        <translation>这是%1，不是%2</translation>
    </message>
    <message>
        <source>must be at least %1 in number, not %2</source>
        <translation>至少应为 %1 个，而不是 %2 个</translation>
    </message>
    <message>
        <source>must be %1 in number, not %2</source>
        <translation>应为 %1 个，而不是 %2 个</translation>
    </message>
    <message>
        <source>no file can be written there</source>
        <translation>无法在该处写入文件</translation>
    </message>
    <message>
        <source>the name must end in .gbr, .png or .svg</source>
        <translation>文件名必须以 .gbr、.png 或 .svg 结尾</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>Gerber (*.gbr)</source>
        <translation>Gerber (*.gbr)</translation>
    </message>
    <message>
        <source>Picture (*.png)</source>
        <translation>图片 (*.png)</translation>
    </message>
    <message>
        <source>Drawing (*.svg)</source>
        <translation>矢量图 (*.svg)</translation>
    </message>
    <message>
        <source>Board (*.json)</source>
        <translation>电路板 (*.json)</translation>
    </message>
    <message>
        <source>Open Board</source>
        <translation>打开电路板</translation>
    </message>
    <message>
        <source>Save Board</source>
        <translation>保存电路板</translation>
    </message>
    <message>
        <source>Export Board</source>
        <translation>导出电路板</translation>
    </message>
</context>
<context>
    <name>FileQuestion</name>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1已经存在。
要替换它吗？</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Feature record (message %1)</source>
        <translation>图元记录（消息 %1）</translation>
    </message>
    <message>
        <source>Feature record (none yet)</source>
        <translation>图元记录（尚无）</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>属性</translation>
    </message>
</context>
<context>
    <name>JobTreePane</name>
    <message>
        <source>Double-click a step to open it.</source>
        <translation>双击打开一个步骤。</translation>
    </message>
    <message>
        <source>%1 (open)</source>
        <translation>%1（已打开）</translation>
    </message>
</context>
<context>
    <name>Lengths</name>
    <message>
        <source>mil</source>
        <translation>mil（密耳）</translation>
    </message>
    <message>
        <source>inch</source>
        <translation>英寸</translation>
    </message>
    <message>
        <source>micrometre</source>
        <translation>微米</translation>
    </message>
    <message>
        <source>millimetre</source>
        <translation>毫米</translation>
    </message>
    <message>
        <source>%1 mil</source>
        <translation>%1 mil</translation>
    </message>
    <message>
        <source>%1, %2 mil</source>
        <translation>%1, %2 mil</translation>
    </message>
    <message>
        <source>%1 inch</source>
        <translation>%1 英寸</translation>
    </message>
    <message>
        <source>%1, %2 inch</source>
        <translation>%1, %2 英寸</translation>
    </message>
    <message>
        <source>%1 um</source>
        <translation>%1 微米</translation>
    </message>
    <message>
        <source>%1, %2 um</source>
        <translation>%1, %2 微米</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 毫米</translation>
    </message>
    <message>
        <source>%1, %2 mm</source>
        <translation>%1, %2 毫米</translation>
    </message>
</context>
<context>
    <name>LongWork</name>
    <message>
        <source>Please Wait</source>
        <translation>请稍候</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>正在取消…</translation>
    </message>
</context>
<context>
    <name>MeasurePane</name>
    <message>
        <source>Measure</source>
        <translation>测量</translation>
    </message>
    <message>
        <source>Click two points on the canvas.</source>
        <translation>请在画布上单击两个点。</translation>
    </message>
    <message>
        <source>No distance yet</source>
        <translation>尚无测量结果</translation>
    </message>
    <message>
        <source>dx %1   dy %2</source>
        <translation>dx %1   dy %2</translation>
    </message>
</context>
<context>
    <name>MessageDialog</name>
    <message>
        <source>by address</source>
        <translation>按地址</translation>
    </message>
    <message>
        <source>Message %1</source>
        <translation>消息 %1</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>From</source>
        <translation>发送方</translation>
    </message>
    <message>
        <source>To</source>
        <translation>接收方</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Extra</source>
        <translation>附加字</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>已送达</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>MessageModel</name>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>From</source>
        <translation>发送方</translation>
    </message>
    <message>
        <source>To</source>
        <translation>接收方</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Payload</source>
        <translation>数据</translation>
    </message>
    <message>
        <source>Extra</source>
        <translation>附加字</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>已送达</translation>
    </message>
</context>
<context>
    <name>MessageMonitor</name>
    <message numerus="yes">
        <source>%n message(s)</source>
        <translation>
            <numerusform>%n 条消息</numerusform>
        </translation>
    </message>
    <message>
        <source>Select a message to see it in full.</source>
        <translation>选择一条消息以查看全部内容。</translation>
    </message>
    <message>
        <source>Save Trace</source>
        <translation>保存消息记录</translation>
    </message>
    <message>
        <source>Filter: any text of a message</source>
        <translation>过滤：消息中的任意文字</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>保存…</translation>
    </message>
    <message>
        <source>Compose...</source>
        <translation>编写…</translation>
    </message>
    <message>
        <source>Message traces (*.jsonl)</source>
        <translation>消息记录 (*.jsonl)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Cannot save the trace</source>
        <translation>无法保存消息记录</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n message(s)</source>
        <translation>
            <numerusform>%1 / %n 条消息</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MessageNames</name>
    <message>
        <source>Measure</source>
        <translation>测量</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>标记</translation>
    </message>
    <message>
        <source>EQ</source>
        <translation>EQ</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>填充</translation>
    </message>
    <message>
        <source>Open Job and Step</source>
        <translation>打开料号和步骤</translation>
    </message>
    <message>
        <source>Job and Step Opened</source>
        <translation>料号和步骤已打开</translation>
    </message>
    <message>
        <source>Job and Step</source>
        <translation>料号和步骤</translation>
    </message>
    <message>
        <source>Check and Measure</source>
        <translation>选中并测量</translation>
    </message>
    <message>
        <source>Release All Tools</source>
        <translation>释放所有工具</translation>
    </message>
    <message>
        <source>Add Feature Is Active</source>
        <translation>添加图元已激活</translation>
    </message>
    <message>
        <source>No Code</source>
        <translation>无代码</translation>
    </message>
    <message>
        <source>Open a Popview</source>
        <translation>打开弹出视图</translation>
    </message>
    <message>
        <source>Feature HighLight</source>
        <translation>高亮图元</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>镜像</translation>
    </message>
    <message>
        <source>Rout Dimension Editor</source>
        <translation>锣带尺寸编辑</translation>
    </message>
    <message>
        <source>Move Triplet(Angle)</source>
        <translation>移动三段线(保持角度)</translation>
    </message>
    <message>
        <source>Reroute Trace(Fix Point)</source>
        <translation>重新布线(固定点)</translation>
    </message>
    <message>
        <source>Select a Symbol on the Board</source>
        <translation>在电路板上选取符号</translation>
    </message>
    <message>
        <source>Feature Record</source>
        <translation>图元记录</translation>
    </message>
    <message>
        <source>Feature Record (Direction)</source>
        <translation>图元记录（方向）</translation>
    </message>
    <message>
        <source>Select Attributes on the Board</source>
        <translation>在电路板上选取属性</translation>
    </message>
    <message>
        <source>Area Zoom</source>
        <translation>区域缩放</translation>
    </message>
    <message>
        <source>Feature Selection</source>
        <translation>选择图元</translation>
    </message>
    <message>
        <source>Rectangle Selection</source>
        <translation>矩形框选</translation>
    </message>
    <message>
        <source>Feature Selection Off</source>
        <translation>选择图元 关</translation>
    </message>
    <message>
        <source>Rectangle Selection Off</source>
        <translation>矩形框选 关</translation>
    </message>
    <message>
        <source>Delete Feature</source>
        <translation>删除图元</translation>
    </message>
    <message>
        <source>Move Feature</source>
        <translation>移动图元</translation>
    </message>
    <message>
        <source>Copy Feature</source>
        <translation>复制图元</translation>
    </message>
    <message>
        <source>Change Line Angle</source>
        <translation>改变线角度</translation>
    </message>
    <message>
        <source>Stretch Line</source>
        <translation>拉伸线</translation>
    </message>
    <message>
        <source>Invert Feature</source>
        <translation>反转图元极性</translation>
    </message>
    <message>
        <source>Break Line</source>
        <translation>打断线</translation>
    </message>
    <message>
        <source>Contour Editor</source>
        <translation>轮廓编辑</translation>
    </message>
    <message>
        <source>Pull Line</source>
        <translation>拉线</translation>
    </message>
    <message>
        <source>Move Junction</source>
        <translation>移动连接点</translation>
    </message>
    <message>
        <source>Polygon Selection</source>
        <translation>多边形框选</translation>
    </message>
    <message>
        <source>Polygon Selection Off</source>
        <translation>多边形框选 关</translation>
    </message>
    <message>
        <source>Invert Feature Off</source>
        <translation>反转图元极性 关</translation>
    </message>
    <message>
        <source>Break Line Off</source>
        <translation>打断线 关</translation>
    </message>
    <message>
        <source>Change Line Angle Off</source>
        <translation>改变线角度 关</translation>
    </message>
    <message>
        <source>Stretch Line Off</source>
        <translation>拉伸线 关</translation>
    </message>
    <message>
        <source>Rotate Feature Off</source>
        <translation>旋转图元 关</translation>
    </message>
    <message>
        <source>Add Feature</source>
        <translation>添加图元</translation>
    </message>
    <message>
        <source>Select Polyline</source>
        <translation>选择折线</translation>
    </message>
    <message>
        <source>Select Layer Net</source>
        <translation>选择层网络</translation>
    </message>
    <message>
        <source>Select Board Net</source>
        <translation>选择板网络</translation>
    </message>
    <message>
        <source>Add Feature Started</source>
        <translation>添加图元已启动</translation>
    </message>
    <message>
        <source>Move Triplet Off</source>
        <translation>移动三段线 关</translation>
    </message>
    <message>
        <source>Reroute Trace Off</source>
        <translation>重新布线 关</translation>
    </message>
    <message>
        <source>Mark Settings</source>
        <translation>标记设置</translation>
    </message>
    <message>
        <source>Dialogs Closed</source>
        <translation>对话框已关闭</translation>
    </message>
    <message>
        <source>Attributes Picked</source>
        <translation>已选取属性</translation>
    </message>
    <message>
        <source>Symbols Picked</source>
        <translation>已选取符号</translation>
    </message>
    <message>
        <source>User Symbols Changed</source>
        <translation>用户符号已改变</translation>
    </message>
    <message>
        <source>Job Name</source>
        <translation>料号名</translation>
    </message>
    <message>
        <source>Unit Changed</source>
        <translation>单位已改变</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>语言已改变</translation>
    </message>
    <message>
        <source>Close Dialogs</source>
        <translation>关闭对话框</translation>
    </message>
</context>
<context>
    <name>MessageWords</name>
    <message>
        <source>&quot;%1&quot; is not a list NUMBER=SYMBOL,...</source>
        <translation>“%1”不是“编号=符号,…”形式的列表</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a list NAME=VALUE,...</source>
        <translation>“%1”不是“名称=值,…”形式的列表</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a message code</source>
        <translation>“%1”不是消息代码</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number</source>
        <translation>“%1”不是整数</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number</source>
        <translation>“%1”不是数字</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation>“%1”既不是 true 也不是 false</translation>
    </message>
</context>
<context>
    <name>NameList</name>
    <message>
        <source>Filter</source>
        <translation>过滤</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Special Texts</source>
        <translation>特殊文字</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>OpenStep</name>
    <message>
        <source>a board without a job</source>
        <translation>不属于任何料号的电路板</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
</context>
<context>
    <name>PayloadTable</name>
    <message>
        <source>text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>integer</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>decimal</source>
        <translation>小数</translation>
    </message>
    <message>
        <source>truth</source>
        <translation>真假</translation>
    </message>
    <message>
        <source>the key is missing</source>
        <translation>缺少键</translation>
    </message>
    <message>
        <source>the key &quot;%1&quot; appears twice</source>
        <translation>键“%1”出现了两次</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>第 %1 行</translation>
    </message>
</context>
<context>
    <name>PlaceHints</name>
    <message>
        <source>Click the centre</source>
        <translation>单击中心</translation>
    </message>
    <message>
        <source>Click the start</source>
        <translation>单击起点</translation>
    </message>
    <message>
        <source>Click the end</source>
        <translation>单击终点</translation>
    </message>
    <message>
        <source>Click a corner</source>
        <translation>单击一个顶点</translation>
    </message>
    <message>
        <source>Click the opposite corner</source>
        <translation>单击对角顶点</translation>
    </message>
    <message>
        <source>Click the next corner</source>
        <translation>单击下一个顶点</translation>
    </message>
    <message>
        <source>Click a point of the circle</source>
        <translation>单击圆上一点</translation>
    </message>
    <message>
        <source>Click the centre of the slot</source>
        <translation>单击槽的中心</translation>
    </message>
    <message>
        <source>Click the centre of the pad</source>
        <translation>单击焊盘的中心</translation>
    </message>
    <message>
        <source>Click the direction of the end</source>
        <translation>单击终点的方向</translation>
    </message>
    <message>
        <source>Click a point of the arc between</source>
        <translation>单击圆弧中间的一点</translation>
    </message>
    <message>
        <source>Click as far from the start as the arc is long</source>
        <translation>单击一点，其到起点的距离为弧长</translation>
    </message>
    <message>
        <source>Click as far from the end as the radius is long</source>
        <translation>单击一点，其到终点的距离为半径</translation>
    </message>
    <message>
        <source>its code cannot carry &quot;%1&quot;</source>
        <translation>其条码无法包含“%1”</translation>
    </message>
    <message>
        <source>the font lacks &quot;%1&quot;</source>
        <translation>字体缺少“%1”</translation>
    </message>
    <message>
        <source>a right click ends it</source>
        <translation>右键单击结束</translation>
    </message>
    <message>
        <source>a right click cancels</source>
        <translation>右键单击取消</translation>
    </message>
    <message>
        <source>There is no text that could be drawn: clicks do nothing.</source>
        <translation>没有可绘制的文字：单击无效。</translation>
    </message>
    <message>
        <source>; </source>
        <translation>；</translation>
    </message>
    <message>
        <source>.</source>
        <translation>。</translation>
    </message>
    <message>
        <source>%1, %2
dx %3
dy %4</source>
        <translation>%1，%2
dx %3
dy %4</translation>
    </message>
    <message>
        <source>Click the first pad&apos;s centre</source>
        <translation>单击第一个焊盘的中心</translation>
    </message>
    <message>
        <source>Click the circle&apos;s second point</source>
        <translation>单击圆上第二点</translation>
    </message>
    <message>
        <source>Click the circle&apos;s third point</source>
        <translation>单击圆上第三点</translation>
    </message>
    <message>
        <source>Click where the angle ends</source>
        <translation>单击角度的终止方向</translation>
    </message>
    <message>
        <source>Click where the angle at the start is half the arc&apos;s</source>
        <translation>单击一点，使起点处的角为圆弧角度的一半</translation>
    </message>
    <message>
        <source>Click the lower left corner</source>
        <translation>单击文字的左下角</translation>
    </message>
    <message>
        <source>no symbol, %1 is drawn</source>
        <translation>未指定符号，将绘制 %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is drawn in outline</source>
        <translation>“%1”只画轮廓</translation>
    </message>
</context>
<context>
    <name>PlaceTool</name>
    <message>
        <source>Add feature</source>
        <translation>添加图元</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>Not a directory</source>
        <translation>不是目录</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>是目录</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>只读文件系统</translation>
    </message>
</context>
<context>
    <name>RecordTable</name>
    <message>
        <source>Key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
</context>
<context>
    <name>RecoveryOffer</name>
    <message>
        <source>Recover Changes</source>
        <translation>恢复更改</translation>
    </message>
    <message>
        <source>The workbench ended without saving these changes:
%1</source>
        <translation>工作台退出时未保存以下更改：
%1</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>恢复(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>放弃(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>稍后(&amp;L)</translation>
    </message>
    <message>
        <source>%1, of %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>%1 (%3), of %2</source>
        <translation>%1（%3），%2</translation>
    </message>
    <message>
        <source>Recovered: %1.</source>
        <translation>已恢复：%1。</translation>
    </message>
    <message>
        <source>Left for the next start: %1.</source>
        <translation>留待下次启动：%1。</translation>
    </message>
    <message>
        <source>The changes have been discarded.</source>
        <translation>更改已放弃。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>%1 (%2; %3)</source>
        <translation>%1（%2；%3）</translation>
    </message>
    <message>
        <source>%1 (in %2, as %3)</source>
        <translation>%1（恢复到 %2，因为%3）</translation>
    </message>
</context>
<context>
    <name>SelectionTools</name>
    <message numerus="yes">
        <source>%n feature(s) selected.</source>
        <translation>
            <numerusform>已选择 %n 个图元。</numerusform>
        </translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation>取消选择</translation>
    </message>
    <message>
        <source>Click a feature to select it; hold Ctrl to add one.</source>
        <translation>单击以选择图元；按住 Ctrl 可多选。</translation>
    </message>
    <message>
        <source>Click a feature to select everything that touches it.</source>
        <translation>单击图元以选择与其相连的全部图元。</translation>
    </message>
    <message>
        <source>Click a feature to select its net.</source>
        <translation>单击图元以选择其网络。</translation>
    </message>
    <message>
        <source>Click a line to select its polyline.</source>
        <translation>单击线以选择其所在折线。</translation>
    </message>
    <message>
        <source>Select a rectangle</source>
        <translation>矩形选择</translation>
    </message>
    <message>
        <source>Click the opposite corner.</source>
        <translation>单击对角顶点。</translation>
    </message>
    <message>
        <source>Drag a rectangle, or click two corners.</source>
        <translation>拖出一个矩形，或单击两个顶点。</translation>
    </message>
    <message>
        <source>Select a polygon</source>
        <translation>多边形选择</translation>
    </message>
    <message>
        <source>Click the corners of a polygon.</source>
        <translation>依次单击多边形的顶点。</translation>
    </message>
    <message>
        <source>Click the next corner; a right click ends the polygon.</source>
        <translation>单击下一个顶点；右键单击结束多边形。</translation>
    </message>
</context>
<context>
    <name>SnapControls</name>
    <message>
        <source>Points snap.</source>
        <translation>点将被捕捉。</translation>
    </message>
    <message>
        <source>Points do not snap.</source>
        <translation>点不被捕捉。</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>捕捉</translation>
    </message>
    <message>
        <source>Snap to the grid, and to ends and centres of features (%1)</source>
        <translation>捕捉到网格以及图元的端点和中心（%1）</translation>
    </message>
    <message>
        <source>&amp;Grid</source>
        <translation>网格(&amp;G)</translation>
    </message>
    <message>
        <source>The step of the grid that points snap to</source>
        <translation>捕捉网格的间距</translation>
    </message>
    <message>
        <source>Grid step</source>
        <translation>网格间距</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a grid step (%2 to %3).</source>
        <translation>“%1”不是网格间距（%2 至 %3）。</translation>
    </message>
</context>
<context>
    <name>ToolLine</name>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>x y</source>
        <translation>x y</translation>
    </message>
    <message>
        <source>The position of the mouse. Type another, such as 12.5 40 or 1mm 40mil: Enter clicks there. @5 0 is 5 to the right of the last point.</source>
        <translation>鼠标位置。可输入其他位置，例如 12.5 40 或 1mm 40mil：按回车键即在该处单击。@5 0 为上一点右侧 5 处。</translation>
    </message>
</context>
<context>
    <name>ToolSet</name>
    <message>
        <source>No tool is active: clicks do nothing.</source>
        <translation>没有激活的工具：单击无效。</translation>
    </message>
    <message>
        <source>The popview is open; choose a tool to work in either.</source>
        <translation>弹出视图已打开；选择工具后可在任一视图中操作。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does nothing on this canvas.</source>
        <translation>“%1”在此画布上不起作用。</translation>
    </message>
</context>
<context>
    <name>UiApi</name>
    <message>
        <source>The value must lie between %1 and %2.</source>
        <translation>数值必须在 %1 和 %2 之间。</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>提示</translation>
    </message>
</context>
<context>
    <name>UnknownTexts</name>
    <message>
        <source>Symbols: %1.</source>
        <translation>符号：%1。</translation>
    </message>
    <message>
        <source>Letters: %1.</source>
        <translation>字符：%1。</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s) of unknown shape drawn as outlines.</source>
        <translation>
            <numerusform>%n 个形状未知的图元仅显示轮廓。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s) of unknown shape left out of the file.</source>
        <translation>
            <numerusform>%n 个形状未知的图元未写入文件。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UnsavedBox</name>
    <message>
        <source>Unsaved Changes</source>
        <translation>未保存的更改</translation>
    </message>
    <message>
        <source>&amp;Save All</source>
        <translation>全部保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Discard All</source>
        <translation>全部放弃(&amp;D)</translation>
    </message>
    <message>
        <source>%1 has been changed and is in no file yet. Save the changes?</source>
        <translation>%1 已更改，尚未保存到文件。是否保存更改？</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been changed. Save the changes?</source>
        <translation>“%1”已更改。是否保存更改？</translation>
    </message>
    <message>
        <source>in no file yet</source>
        <translation>尚未保存到文件</translation>
    </message>
    <message>
        <source>These boards have been changed:
%1
Save the changes?</source>
        <translation>以下电路板已更改：
%1
是否保存更改？</translation>
    </message>
</context>
<context>
    <name>ViewTools</name>
    <message>
        <source>Click the opposite corner.</source>
        <translation>单击对角顶点。</translation>
    </message>
    <message>
        <source>Drag the area to show, or click two corners of it.</source>
        <translation>拖出要显示的区域，或单击其两个顶点。</translation>
    </message>
    <message>
        <source>Highlight nothing</source>
        <translation>取消高亮</translation>
    </message>
    <message>
        <source>Highlight</source>
        <translation>高亮</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>标记</translation>
    </message>
    <message>
        <source>Along x %1, along y %2.</source>
        <translation>X 方向 %1，Y 方向 %2。</translation>
    </message>
    <message>
        <source>Distance %1.</source>
        <translation>距离 %1。</translation>
    </message>
    <message>
        <source>Remove marks</source>
        <translation>清除标记</translation>
    </message>
    <message>
        <source>Click the second point to mark.</source>
        <translation>单击要标记的第二点。</translation>
    </message>
    <message>
        <source>Click the second point to measure to.</source>
        <translation>单击测量的终点。</translation>
    </message>
    <message>
        <source>Click the first point to measure from.</source>
        <translation>单击测量的起点。</translation>
    </message>
    <message>
        <source>Click a feature to highlight its net, again to end it.</source>
        <translation>单击图元以高亮其网络；再次单击取消。</translation>
    </message>
    <message>
        <source>Click the first point; a right click removes the marks.</source>
        <translation>单击要标记的第一点；右键单击清除标记。</translation>
    </message>
</context>
<context>
    <name>ViewerPane</name>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>%1, mode %2</source>
        <translation>%1，模式 %2</translation>
    </message>
    <message>
        <source>Tool: %1</source>
        <translation>工具：%1</translation>
    </message>
    <message>
        <source>Click a feature to take its symbol.</source>
        <translation>单击图元以取得其符号。</translation>
    </message>
    <message>
        <source>Click a feature to take its attributes.</source>
        <translation>单击图元以取得其属性。</translation>
    </message>
    <message>
        <source>This canvas has no settings for marks.</source>
        <translation>此画布没有标记设置。</translation>
    </message>
    <message>
        <source>negative</source>
        <translation>负极性</translation>
    </message>
    <message>
        <source>Board</source>
        <translation>电路板</translation>
    </message>
    <message>
        <source>Popview</source>
        <translation>弹出视图</translation>
    </message>
    <message>
        <source>The entries in Add Feature are lost.</source>
        <translation>“添加图元”中的输入将丢失。</translation>
    </message>
    <message>
        <source>What has been begun on the board is lost.</source>
        <translation>电路板上尚未完成的操作将丢失。</translation>
    </message>
    <message>
        <source>EQ Tool</source>
        <translation>EQ 工具</translation>
    </message>
    <message>
        <source>C&amp;ontinue</source>
        <translation>继续(&amp;O)</translation>
    </message>
    <message>
        <source>Changes cannot be kept for recovery</source>
        <translation>无法保留更改以备恢复</translation>
    </message>
    <message>
        <source>There is no last point yet from which @ could count.</source>
        <translation>还没有可供 @ 计算的上一点。</translation>
    </message>
    <message>
        <source>A position is less than ten metres from 0.</source>
        <translation>位置到 0 的距离必须小于十米。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a position, such as 12.5 40 or @5mm 0.</source>
        <translation>“%1”不是位置，正确示例：12.5 40 或 @5mm 0。</translation>
    </message>
    <message>
        <source>The edit tools are made anew.</source>
        <translation>编辑工具将重新创建。</translation>
    </message>
</context>
<context>
    <name>WorkbenchWindow</name>
    <message>
        <source>Save &amp;Trace...</source>
        <translation>保存消息记录(&amp;T)…</translation>
    </message>
    <message>
        <source>Save &amp;Picture...</source>
        <translation>保存图片(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Dimensions Popup</source>
        <translation>尺寸标注(&amp;D)</translation>
    </message>
    <message>
        <source>Workbench</source>
        <translation>工作台</translation>
    </message>
    <message>
        <source>&amp;Job</source>
        <translation>料号(&amp;J)</translation>
    </message>
    <message>
        <source>&amp;Unit</source>
        <translation>单位(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>Edit tools</source>
        <translation>编辑工具</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>料号</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>保存图片</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>图片 (*.png)</translation>
    </message>
    <message>
        <source>&amp;Documentation</source>
        <translation>文档(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>关于(&amp;A)…</translation>
    </message>
    <message>
        <source>%1 / %2[*] - Workbench</source>
        <translation>%1 / %2[*] - 工作台</translation>
    </message>
    <message>
        <source>%1[*] - %2 / %3 - Workbench</source>
        <translation>%1[*] - %2 / %3 - 工作台</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Workbench %1, a small host of the Canvas Tool Strip.
Qt %2</source>
        <translation>工作台 %1，画布编辑工具的小型主程序。
Qt %2</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>发送(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>最近打开的文件(&amp;R)</translation>
    </message>
    <message>
        <source>Restore &amp;Layout</source>
        <translation>恢复布局(&amp;L)</translation>
    </message>
    <message>
        <source>Open Job</source>
        <translation>打开料号</translation>
    </message>
    <message>
        <source>Jobs (*.json)</source>
        <translation>料号 (*.json)</translation>
    </message>
    <message>
        <source>Cannot open the job</source>
        <translation>无法打开料号</translation>
    </message>
    <message>
        <source>Cannot save the picture</source>
        <translation>无法保存图片</translation>
    </message>
    <message>
        <source>Open &amp;Job...</source>
        <translation>打开料号(&amp;J)…</translation>
    </message>
    <message>
        <source>Cannot load the edit tools</source>
        <translation>无法加载编辑工具</translation>
    </message>
    <message>
        <source>Record Session</source>
        <translation>录制会话</translation>
    </message>
    <message>
        <source>Sessions (*.session)</source>
        <translation>会话 (*.session)</translation>
    </message>
    <message>
        <source>Cannot record the session</source>
        <translation>无法录制会话</translation>
    </message>
    <message>
        <source>Stop Re&amp;cording</source>
        <translation>停止录制(&amp;C)</translation>
    </message>
    <message>
        <source>Re&amp;cord Session...</source>
        <translation>录制会话(&amp;C)…</translation>
    </message>
    <message>
        <source>S&amp;tep</source>
        <translation>步骤(&amp;T)</translation>
    </message>
    <message>
        <source>E&amp;Q tool</source>
        <translation>EQ 工具(&amp;Q)</translation>
    </message>
    <message>
        <source>Whether the host offers the EQ tool; the edit tools are made anew.</source>
        <translation>主程序是否提供 EQ 工具；编辑工具会重新创建。</translation>
    </message>
    <message>
        <source>Cannot load the Dimensions Popup</source>
        <translation>无法加载尺寸标注</translation>
    </message>
</context>
</TS>
